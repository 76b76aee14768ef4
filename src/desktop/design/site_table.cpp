#include "desktop/design/site_table.h"

#include "desktop/parts/text_table.h"
#include "toolkit/number_text.h"

#include <QHeaderView>
#include <QTableWidget>

#include <algorithm>
#include <cstddef>
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
  cells.reserve(sites.Headings.size());
  for (const std::string& heading : sites.Headings) {
    cells.push_back(WidestText(state, heading));
  }
  widest.Rows.push_back(std::move(cells));
  QTableWidget* widget = MakeTextTable(parent, "sites", widest);
  widget->horizontalHeader()->setStretchLastSection(false);
  widget->horizontalHeader()->setHighlightSections(false);
  widget->setSortingEnabled(false);  // no room for its arrow, which would go with the first sites
  widget->resizeColumnsToContents();
  widget->setSortingEnabled(true);
  FillSiteTable(*widget, sites);
  return widget;
}

void FillSiteTable(QTableWidget& widget, const TextTable& sites)
{
  std::vector<int> widths;  // of columns, which never narrow: the window keeps its shape
  widths.reserve(static_cast<std::size_t>(widget.columnCount()));
  for (int column = 0; column < widget.columnCount(); ++column) {
    widths.push_back(widget.columnWidth(column));
  }
  FillTextTable(widget, sites);
  for (int column = 0; column < widget.columnCount(); ++column) {
    widget.setColumnWidth(column, qMax(widget.columnWidth(column), widths[static_cast<std::size_t>(column)]));
  }
}

}  // namespace veln
