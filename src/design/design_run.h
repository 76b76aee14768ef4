#pragma once

#include "design/design_levels.h"
#include "design/run_observer.h"
#include "design/target_search.h"
#include "design/target_sites.h"
#include "workspace/survey_state.h"

#include <span>
#include <string>
#include <vector>

namespace veln {

/// What a design run takes from the user.
struct DesignSettings {
  DesignSize Size = DesignSize::Standard;
  double DFactor = 1;     ///< 0.80 to 1.20: stretches the pattern of targets
  bool IgnoreTA = false;  ///< transition scores do not count
  Stratum Parsing;        ///< the sites that the target search may use
  bool IncludeSupportSites = true;
  std::string Rounding = "0.000";  ///< decimals of Opt-Criteria
};

/// A sample design: which sites to dig, and how well they are spread.
struct Design {
  DesignSettings Settings;
  int SignalCount = 1;  ///< of the survey
  DesignLevels Levels{};
  TargetSites Sites;  ///< target points first, then the support sites
  double OptCriteria = 0;
  int LoopCount = 0;
  int MissingSupportSites = 0;  ///< support sites for which the survey has no site left

  /// Target points and support sites, those that are missing included.
  [[nodiscard]] int PointCount() const { return SampleSize(Settings.Size, Settings.IncludeSupportSites); }
};

/// One point of a design, with views into it.
struct DesignPoint {
  int Number = 1;  ///< from 1
  const CandidateSite& Site;
  bool Support = false;
  std::span<const CandidateSite> Alternates;  ///< the two of a target point
  std::span<const double> Target;             ///< what a target point asks for, one level a signal
};

/// The points of a design that have a site, in their order. The views last as long as the design stays as it
/// is.
std::vector<DesignPoint> PointsOf(const Design& design);

/// Whether transition scores enter the design search and its report.
bool TransitionCounts(const SurveyState& state, bool ignoreTA);

/// Makes one sample design from the survey as it stands; the same survey and settings always give the same
/// design. The candidates that were marked meanwhile are free again. Throws Refusal if the sites have no
/// extent or the stratum has too few free sites.
Design MakeDesign(SurveyState& state, const DesignSettings& settings, RunObserver& observer);

/// Marks the candidates of a design that waits to be saved: chosen sites and alternates of its target points.
CandidateHold HoldCandidates(SurveyState& state, const Design& design);

}  // namespace veln
