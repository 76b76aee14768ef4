#include "quality/design_facts.h"

#include "design/design_optimisation.h"
#include "survey/statistics.h"

namespace veln {

namespace {

/// Free, or held by the run in work.
bool WasFree(std::int16_t status)
{
  return status == site_status::Free || status == site_status::Candidate;
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
  Plan plan;
  for (const DesignPoint& point : PointsOf(design)) {
    PlanSite& site = plan.Sites.emplace_back(PlanSite{point.Site.Index, point.Number, std::nullopt});
    if (point.Support) {
      continue;
    }
    site.Target = {point.Target.front(), point.Target.size() > 1 ? point.Target.back() : 0};
    std::vector<FieldPosition>& candidates = plan.Candidates.emplace_back();
    candidates.push_back({point.Site.X, point.Site.Y});
    for (const CandidateSite& alternate : point.Alternates) {
      candidates.push_back({alternate.X, alternate.Y});
    }
  }
  plan.Chosen.assign(plan.Candidates.size(), 0);
  plan.TargetSeparation = TargetSepDist(state, TargetPoints(design.Settings.Size));
  return plan;
}

}  // namespace veln
