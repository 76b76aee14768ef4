#pragma once

#include "design/run_observer.h"
#include "design/target_sites.h"
#include "workspace/survey_state.h"

#include <memory>
#include <span>

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
  int Point = 1;                   ///< design point, from 1
  std::span<const double> Levels;  ///< targets for z1 and, with two signals, z2
  bool UseScores = false;          ///< the transition score counts as a further coordinate with target 0
};

/// Finds the three eligible free sites nearest to the target in signal space, of equal ones the earlier in
/// the survey; marks them as candidates and reports status and candidates. Throws Refusal if a pass has no
/// eligible site.
PointCandidates LocateTargetSites(SurveyState& state, const SearchTarget& target, const Stratum& stratum,
                                  RunObserver& observer);

/// Frees all candidates of the design in work.
void ClearOldTS(SurveyState& state);

/// Frees the candidates when its hold ends.
struct CandidateRelease {
  void operator()(SurveyState* state) const { ClearOldTS(*state); }
};

/// Keeps sites marked as candidates in a record, which outlives it, and frees them when it goes.
using CandidateHold = std::unique_ptr<SurveyState, CandidateRelease>;

/// `DetermineAvSites`: how many sites are free.
int DetermineAvSites(const SurveyState& state);

}  // namespace veln
