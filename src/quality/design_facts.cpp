#include "quality/design_facts.h"

#include "design/design_optimisation.h"
#include "survey/statistics.h"

namespace veln {

namespace {

/// Free, held by the run in work, or picked in the selection in work.
bool WasFree(std::int16_t status)
{
  return status == site_status::Free || status == site_status::Candidate || status == site_status::Selected;
}

std::array<double, 2> TargetOf(const SurveyState& state, const Design& design, std::size_t point)
{
  const LevelRow& levels = design.Levels.at(point);
  return state.SignalCount == 2 ? std::array{levels[1], levels[2]} : std::array{levels[0], 0.0};
}

}  // namespace

SurveyFacts FactsOf(const SurveyState& state)
{
  SurveyFacts facts;
  facts.SiteId = state.SiteId;
  facts.X = state.CoordX;
  facts.Y = state.CoordY;
  facts.Z1 = state.Decorr1;
  facts.S1 = state.Signal1;
  facts.SignalStd[0] = MeanStd(state.Signal1).Std;
  if (state.SignalCount == 2) {
    facts.Z2 = state.Decorr2;
    facts.S2 = state.Signal2;
    facts.SignalStd[1] = MeanStd(state.Signal2).Std;
  }
  facts.Row = state.RowNumber;
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    if (WasFree(state.SiteStatus[i])) {
      facts.Available.push_back(i);
    }
  }
  return facts;
}

Plan PlanOf(const SurveyState& state, const Design& design)
{
  const auto targets = static_cast<std::size_t>(TargetPoints(design.Settings.Size));
  const auto points = static_cast<std::size_t>(design.PointCount());
  Plan plan;
  for (std::size_t point = 0; point < points; ++point) {
    const PointCandidates& candidates = design.Sites.at(point);
    if (!candidates[0].Exists()) {
      continue;
    }
    PlanSite site{candidates[0].Index, static_cast<int>(point) + 1, std::nullopt};
    if (point < targets) {
      site.Target = TargetOf(state, design, point);
      plan.Candidates.emplace_back();
      for (const CandidateSite& candidate : candidates) {
        plan.Candidates.back().push_back({candidate.X, candidate.Y});
      }
    }
    plan.Sites.push_back(site);
  }
  plan.Chosen.assign(plan.Candidates.size(), 0);
  plan.TargetSeparation = TargetSepDist(state, static_cast<int>(targets));
  return plan;
}

Plan PlanOfSites(const std::vector<std::size_t>& sites)
{
  Plan plan;
  for (const std::size_t site : sites) {
    plan.Sites.push_back({site, 0, std::nullopt});
  }
  return plan;
}

}  // namespace veln
