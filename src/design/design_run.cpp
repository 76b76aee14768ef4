#include "design/design_run.h"

#include "design/design_optimisation.h"
#include "design/support_sites.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <cstddef>
#include <span>
#include <vector>

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
  const bool two = state.SignalCount == 2;
  for (const int point : SearchOrder(design.Settings.Size)) {
    const auto index = static_cast<std::size_t>(point) - 1;
    const LevelRow& levels = design.Levels.at(index);
    const SearchTarget target{point, two ? levels[1] : levels[0], two ? levels[2] : levels[0],
                              TransitionCounts(state, design.Settings.IgnoreTA)};
    design.Sites.at(index) = LocateTargetSites(state, target, design.Settings.Parsing, observer);
  }
}

void PlaceSupportSite(const SurveyState& state, Design& design, std::size_t point, RunObserver& observer)
{
  if (!design.Settings.IncludeSupportSites) {
    return;
  }
  FindSupportSite(state, design.Sites, point, point);
  const CandidateSite& site = design.Sites.at(point)[0];
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

bool TransitionCounts(const SurveyState& state, bool ignoreTA)
{
  return state.TransitionDone && !ignoreTA;
}

Design MakeDesign(SurveyState& state, const DesignSettings& settings, RunObserver& observer)
{
  ClearOldTS(state);
  Design design;
  design.Settings = settings;
  design.Levels = InitDLevels(settings.Size, settings.DFactor);
  try {
    MakePoints(state, design, observer);
  } catch (const Refusal&) {
    ClearOldTS(state);
    throw;
  }
  return design;
}

}  // namespace veln
