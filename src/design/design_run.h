#pragma once

#include "design/design_levels.h"
#include "design/run_observer.h"
#include "design/target_search.h"
#include "design/target_sites.h"
#include "workspace/survey_state.h"

#include <string>

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
  DesignLevels Levels{};
  TargetSites Sites;  ///< target points first, then the support sites
  double OptCriteria = 0;
  int LoopCount = 0;
  int MissingSupportSites = 0;  ///< support sites for which the survey has no site left

  /// Target points and support sites, those that are missing included.
  [[nodiscard]] int PointCount() const { return SampleSize(Settings.Size, Settings.IncludeSupportSites); }
};

/// Whether transition scores enter the design search and its report.
bool TransitionCounts(const SurveyState& state, bool ignoreTA);

/// Makes one sample design from the survey as it stands; the same survey and settings always give the same
/// design. All candidates are left marked (`ClearOldTS` frees them). Throws Refusal, with all candidates
/// freed, if the sites have no extent or the stratum has too few free sites.
Design MakeDesign(SurveyState& state, const DesignSettings& settings, RunObserver& observer);

}  // namespace veln
