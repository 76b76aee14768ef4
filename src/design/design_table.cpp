#include "design/design_table.h"

#include "design/manual_design.h"
#include "toolkit/number_text.h"

#include <cstddef>
#include <string>
#include <utility>

namespace veln {

namespace {

constexpr const char* CoordinateFormat = "########0.0#####";
constexpr const char* LevelFormat = "0.00";

/// One value, or two joined by a comma with two signals.
std::string OneOrTwo(const SurveyState& state, double only, double first, double second)
{
  if (state.SignalCount == 1) {
    return FormatNumber(only, LevelFormat);
  }
  return FormatNumber(first, LevelFormat) + ", " + FormatNumber(second, LevelFormat);
}

std::string DecorrelatedAt(const SurveyState& state, std::size_t i)
{
  return OneOrTwo(state, state.Decorr1[i], state.Decorr1[i], state.SignalCount == 2 ? state.Decorr2[i] : 0);
}

}  // namespace

TextTable ListDesignSites(const SurveyState& state, const Design& design)
{
  TextTable table{{"Point", "Site ID", "x", "y", "Target", "z", "Support"}, {}};
  const int targets = TargetPoints(design.Settings.Size);
  for (int point = 1; point <= design.PointCount(); ++point) {
    const auto index = static_cast<std::size_t>(point) - 1;
    const CandidateSite& site = design.Sites.at(index)[0];
    if (!site.Exists()) {
      continue;
    }
    const bool support = point > targets;
    std::string target;
    if (!support) {
      const LevelRow& levels = design.Levels.at(index);
      target = OneOrTwo(state, levels[0], levels[1], levels[2]);
    }
    table.Rows.push_back({GeneralForm(point), GeneralForm(site.SiteId),
                          FormatNumber(site.X, CoordinateFormat), FormatNumber(site.Y, CoordinateFormat),
                          std::move(target), DecorrelatedAt(state, site.Index), support ? "yes" : ""});
  }
  return table;
}

TextTable ListManualSites(const SurveyState& state)
{
  const bool two = state.SignalCount == 2;
  TextTable table{{"Site ID", "x", "y", state.SignalLabel[0]}, {}};
  if (two) {
    table.Headings.push_back(state.SignalLabel[1]);
  }
  table.Headings.emplace_back("z");
  for (const std::size_t i : SelectedSites(state)) {
    std::vector<std::string> row = {
        GeneralForm(state.SiteId[i]), FormatNumber(state.CoordX[i], CoordinateFormat),
        FormatNumber(state.CoordY[i], CoordinateFormat), FormatNumber(state.Signal1[i], LevelFormat)};
    if (two) {
      row.push_back(FormatNumber(state.Signal2[i], LevelFormat));
    }
    row.push_back(DecorrelatedAt(state, i));
    table.Rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace veln
