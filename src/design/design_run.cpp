#include "design/design_run.h"

#include "design/design_optimisation.h"
#include "design/support_sites.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <cstddef>

namespace veln {

namespace {

/// The points in the order of their search: the outer ones have the first pick, those nearest the centre come
/// last.
std::vector<int> SearchOrder(DesignSize size)
{
  switch (size) {
    case DesignSize::Limited:
      return {2, 3, 4, 5, 1};
    case DesignSize::Standard:
      return {2, 3, 4, 5, 6, 7, 8, 9, 1, 10};
    case DesignSize::Full:
      break;
  }
  return {2, 3, 4, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 1, 10};
}

void LocateAllTargets(SurveyState& state, Design& design, RunObserver& observer)
{
  const bool scores = TransitionCounts(state, design.Settings.IgnoreTA);
  for (const int point : SearchOrder(design.Settings.Size)) {
    const auto index = static_cast<std::size_t>(point) - 1;
    const SearchTarget target{point, TargetLevels(design.Levels.at(index), design.SignalCount), scores};
    design.Sites.at(index) = LocateTargetSites(state, target, design.Settings.Parsing, observer);
  }
}

void PlaceSupportSite(const SurveyState& state, Design& design, std::size_t point, RunObserver& observer)
{
  if (!design.Settings.IncludeSupportSites) {
    return;
  }
  const CandidateSite site = FindSupportSite(state, design.Sites, point);
  design.Sites.at(point)[0] = site;
  if (site.Exists()) {
    observer.SupportFound(site);
  } else {
    ++design.MissingSupportSites;
  }
}

void MakePoints(SurveyState& state, Design& design, RunObserver& observer)
{
  const auto n = static_cast<std::size_t>(TargetPoints(design.Settings.Size));
  const double targetSeparation = TargetSepDist(state, static_cast<int>(n));
  observer.Status(" loading grid data, one moment please...");
  observer.MapReady();
  LocateAllTargets(state, design, observer);
  observer.Started(std::span(design.Sites).first(n));
  const Optimisation optimum =
      ExchangeSites(design.Sites, n, targetSeparation, design.Settings.Rounding, observer);
  design.OptCriteria = optimum.OptCriteria;
  design.LoopCount = optimum.LoopCount;
  PlaceSupportSite(state, design, n, observer);
  if (design.Settings.Size != DesignSize::Limited) {
    observer.Status("Converged on Itrn # " + NumberToString(design.LoopCount) + ":  Opt-Criteria = " +
                    NumberToString(design.OptCriteria) + "  Now searching for 2st SS...");
    PlaceSupportSite(state, design, n + 1, observer);
  }
  observer.Status("Algorithm FINISHED:  Final Opt-Criteria = " + NumberToString(design.OptCriteria));
}

}  // namespace

std::vector<DesignPoint> PointsOf(const Design& design)
{
  std::vector<DesignPoint> points;
  for (int number = 1; number <= design.PointCount(); ++number) {
    const auto index = static_cast<std::size_t>(number) - 1;
    const PointCandidates& candidates = design.Sites.at(index);
    if (!candidates[0].Exists()) {
      continue;
    }
    if (number > TargetPoints(design.Settings.Size)) {
      points.push_back({number, candidates[0], true, {}, {}});
    } else {
      points.push_back({number, candidates[0], false, std::span(candidates).subspan(1),
                        TargetLevels(design.Levels.at(index), design.SignalCount)});
    }
  }
  return points;
}

bool TransitionCounts(const SurveyState& state, bool ignoreTA)
{
  return state.TransitionDone && !ignoreTA;
}

Design MakeDesign(SurveyState& state, const DesignSettings& settings, RunObserver& observer)
{
  ClearOldTS(state);
  const CandidateHold hold(&state);
  Design design;
  design.Settings = settings;
  design.SignalCount = state.SignalCount;
  design.Levels = InitDLevels(settings.Size, settings.DFactor);
  MakePoints(state, design, observer);
  return design;
}

CandidateHold HoldCandidates(SurveyState& state, const Design& design)
{
  CandidateHold hold(&state);
  const auto mark = [&state](const CandidateSite& site) {
    state.SiteStatus.at(site.Index) = site_status::Candidate;
  };
  for (const DesignPoint& point : PointsOf(design)) {
    if (!point.Support) {
      mark(point.Site);
      std::ranges::for_each(point.Alternates, mark);
    }
  }
  return hold;
}

}  // namespace veln
