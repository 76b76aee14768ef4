#include "forms/outlier_list.h"

#include "signal/decorrelation.h"
#include "toolkit/number_text.h"

namespace veln {

TextTable ListOutliers(const SurveyState& state)
{
  constexpr const char* CoordinateFormat = "0.0####";
  constexpr const char* SignalFormat = "0.00#";
  const bool two = state.SignalCount == 2;
  TextTable table;
  table.Headings = {"Site ID", "X Coord", "Y Coord", "Sig 1"};
  if (two) {
    table.Headings.emplace_back("Sig 2");
  }
  table.Headings.emplace_back("Abs(STD)");
  for (std::size_t i = 0; i < state.SiteId.size(); ++i) {
    if (state.SiteStatus[i] != site_status::Outlier) {
      continue;
    }
    std::vector<std::string> row = {
        GeneralForm(state.SiteId[i]), FormatNumber(state.CoordX[i], CoordinateFormat),
        FormatNumber(state.CoordY[i], CoordinateFormat), FormatNumber(state.Signal1[i], SignalFormat)};
    if (two) {
      row.push_back(FormatNumber(state.Signal2[i], SignalFormat));
    }
    row.push_back(FormatNumber(SignalDistance(state, i), "0.000"));
    table.Rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace veln
