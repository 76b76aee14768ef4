#pragma once

#include "design/run_observer.h"
#include "design/target_sites.h"
#include "workspace/survey_state.h"

namespace veln {

/// The stratum in force: of the sites that are free in a pass, counted from 1, those whose count leaves
/// `ParseModulus` when divided by `ParseDenominator`. A denominator of 1 excludes nothing.
struct Stratum {
  int ParseDenominator = 1;
  int ParseModulus = 0;
  bool operator==(const Stratum&) const = default;
};

/// What a design point asks for in signal space.
struct SearchTarget {
  int Point = 1;           ///< design point, from 1
  double Z1 = 0;           ///< target for z1
  double Z2 = 0;           ///< target for z2; not read with one signal
  bool UseScores = false;  ///< the transition score counts as a third coordinate with target 0
};

/// Finds the three eligible free sites nearest to the target in signal space, of equal ones the earlier in
/// the survey; marks them as candidates and reports status and candidates. Throws Refusal if a pass has no
/// eligible site.
PointCandidates LocateTargetSites(SurveyState& state, const SearchTarget& target, const Stratum& stratum,
                                  RunObserver& observer);

/// Frees all candidates of the design in work.
void ClearOldTS(SurveyState& state);

/// `DetermineAvSites`: how many sites are free.
int DetermineAvSites(const SurveyState& state);

}  // namespace veln
