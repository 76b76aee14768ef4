#include "forms/design_table.h"

#include "design/manual_design.h"
#include "toolkit/number_text.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace veln {

namespace {

constexpr const char* CoordinateFormat = "########0.0#####";
constexpr const char* LevelFormat = "0.00";
constexpr std::size_t PlaceColumns = 4;  // point, site ID, x, y

using Row = std::vector<std::string>;

bool HasTwoSignals(const SurveyState& state)
{
  return state.SignalCount == 2;
}

/// A heading for each signal: "z", or "z1" and "z2".
void AddHeadings(Row& headings, const SurveyState& state, const std::string& name)
{
  if (HasTwoSignals(state)) {
    headings.push_back(name + "1");
    headings.push_back(name + "2");
  } else {
    headings.push_back(name);
  }
}

void AddDecorrelated(Row& row, const SurveyState& state, std::size_t i)
{
  row.push_back(FormatNumber(state.Decorr1[i], LevelFormat));
  if (HasTwoSignals(state)) {
    row.push_back(FormatNumber(state.Decorr2[i], LevelFormat));
  }
}

}  // namespace

TextTable ListDesignSites(const SurveyState& state, const std::optional<Design>& design)
{
  TextTable table{{"Point", "Site ID", "x", "y"}, {}};
  AddHeadings(table.Headings, state, "Target ");
  AddHeadings(table.Headings, state, "z");
  table.Headings.emplace_back("Support");
  if (!design) {
    return table;
  }
  for (const DesignPoint& point : PointsOf(*design)) {
    const CandidateSite& site = point.Site;
    Row row = {GeneralForm(point.Number), GeneralForm(site.SiteId), FormatNumber(site.X, CoordinateFormat),
               FormatNumber(site.Y, CoordinateFormat)};
    for (const double level : point.Target) {
      row.push_back(FormatNumber(level, LevelFormat));
    }
    row.resize(PlaceColumns + static_cast<std::size_t>(state.SignalCount));  // a support site has no target
    AddDecorrelated(row, state, site.Index);
    row.emplace_back(point.Support ? "yes" : "");
    table.Rows.push_back(std::move(row));
  }
  return table;
}

TextTable ListManualSites(const SurveyState& state)
{
  TextTable table{{"Site ID", "x", "y", state.SignalLabel[0]}, {}};
  if (HasTwoSignals(state)) {
    table.Headings.push_back(state.SignalLabel[1]);
  }
  AddHeadings(table.Headings, state, "z");
  for (const std::size_t i : SelectedSites(state)) {
    Row row = {GeneralForm(state.SiteId[i]), FormatNumber(state.CoordX[i], CoordinateFormat),
               FormatNumber(state.CoordY[i], CoordinateFormat), FormatNumber(state.Signal1[i], LevelFormat)};
    if (HasTwoSignals(state)) {
      row.push_back(FormatNumber(state.Signal2[i], LevelFormat));
    }
    AddDecorrelated(row, state, i);
    table.Rows.push_back(std::move(row));
  }
  return table;
}

}  // namespace veln
