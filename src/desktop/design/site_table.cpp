#include "desktop/design/site_table.h"

#include "toolkit/number_text.h"

#include <QHeaderView>

#include <algorithm>
#include <string>
#include <vector>

namespace veln {

namespace {

std::string WidestText(const SurveyState& state, const std::string& heading)
{
  const auto coordinate = [](const std::vector<double>& values) {
    return values.empty() ? "" : FormatNumber(*std::ranges::max_element(values), "########0.00");
  };
  if (heading == "x") {
    return coordinate(state.CoordX);
  }
  if (heading == "y") {
    return coordinate(state.CoordY);
  }
  return heading == "Site ID" ? GeneralForm(state.SurveySize) : "-00.00";
}

TextTable WidestRow(const SurveyState& state, const std::vector<std::string>& headings)
{
  TextTable table{headings, {{}}};
  for (const std::string& heading : headings) {
    table.Rows[0].push_back(WidestText(state, heading));
  }
  return table;
}

}  // namespace

SiteTable::SiteTable(QWidget* parent, const QString& accessibleName, const SurveyState& state,
                     const TextTable& sites)
    : TextTableView(parent, "sites", accessibleName, WidestRow(state, sites.Headings))
{
  horizontalHeader()->setStretchLastSection(false);
  horizontalHeader()->setHighlightSections(false);
  setSortingEnabled(false);  // no room for its arrow, which would go with the first sites
  resizeColumnsToContents();
  setSortingEnabled(true);
  ShowSites(sites);
}

void SiteTable::ShowSites(const TextTable& sites)
{
  std::vector<int> widths;  // the window keeps its shape
  widths.reserve(static_cast<std::size_t>(columnCount()));
  for (int column = 0; column < columnCount(); ++column) {
    widths.push_back(columnWidth(column));
  }
  Show(sites);
  for (int column = 0; column < columnCount(); ++column) {
    setColumnWidth(column, qMax(columnWidth(column), widths[static_cast<std::size_t>(column)]));
  }
}

}  // namespace veln
