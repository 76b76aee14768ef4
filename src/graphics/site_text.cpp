#include "graphics/site_text.h"

#include "toolkit/number_text.h"

namespace veln {

namespace {

constexpr const char* CoordinateFormat = "0.0#####";
constexpr const char* ValueFormat = "0.00";

/// The row of a site, counted by runs of one row number.
int RowOf(const SurveyState& state, std::size_t site)
{
  int row = 1;
  for (std::size_t i = 1; i <= site; ++i) {
    row += state.RowNumber[i] != state.RowNumber[i - 1] ? 1 : 0;
  }
  return row;
}

std::string SignalLine(const SurveyState& state, std::size_t site)
{
  std::string line = state.SignalLabel[0] + " " + FormatNumber(state.Signal1[site], ValueFormat);
  if (state.SignalCount == 2) {
    line += ", " + state.SignalLabel[1] + " " + FormatNumber(state.Signal2[site], ValueFormat);
  }
  return line;
}

std::string DecorrelatedLine(const SurveyState& state, std::size_t site)
{
  std::string line = "z1 " + FormatNumber(state.Decorr1[site], ValueFormat);
  if (state.SignalCount == 2) {
    line += ", z2 " + FormatNumber(state.Decorr2[site], ValueFormat);
  }
  return line;
}

}  // namespace

std::string StatusText(std::int16_t status)
{
  switch (status) {
    case site_status::Free:
      return "free";
    case site_status::Selected:
      return "selected by hand";
    case site_status::Masked:
      return "masked";
    case site_status::Outlier:
      return "outlier, or left out by reduction";
    case site_status::Candidate:
      return "candidate of the design in work";
    default:
      return "sample design " + GeneralForm(status);
  }
}

std::string SiteText(const SurveyState& state, std::size_t site)
{
  if (site >= static_cast<std::size_t>(state.SurveySize)) {
    return "";
  }
  std::string text = "Site " + GeneralForm(state.SiteId[site]) + "\nx " +
                     FormatNumber(state.CoordX[site], CoordinateFormat) + ", y " +
                     FormatNumber(state.CoordY[site], CoordinateFormat) + "\n" + SignalLine(state, site);
  if (site < state.Decorr1.size()) {
    text += "\n" + DecorrelatedLine(state, site);
  }
  text += "\n" + StatusText(state.SiteStatus[site]);
  if (site < state.RowNumber.size()) {
    text += "\nrow " + GeneralForm(RowOf(state, site));
  }
  return text;
}

}  // namespace veln
