#include "desktop/design/site_table.h"

#include "desktop/text_table.h"
#include "toolkit/number_text.h"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>
#include <string>
#include <utility>
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

}  // namespace

QTableWidget* MakeSiteTable(QWidget* parent, const SurveyState& state, const TextTable& sites)
{
  TextTable widest{sites.Headings, {}};
  std::vector<std::string> cells;
  for (const std::string& heading : sites.Headings) {
    cells.push_back(WidestText(state, heading));
  }
  widest.Rows.push_back(std::move(cells));
  QTableWidget* widget = MakeTextTable(parent, "sites", widest);
  widget->horizontalHeader()->setStretchLastSection(false);
  widget->horizontalHeader()->setHighlightSections(false);
  widget->resizeColumnsToContents();
  FillSiteTable(*widget, sites);
  return widget;
}

void FillSiteTable(QTableWidget& widget, const TextTable& sites)
{
  if (sites.Rows.empty()) {
    widget.setRowCount(0);  // the columns keep their width
  } else {
    FillTextTable(widget, sites);
  }
}

}  // namespace veln
