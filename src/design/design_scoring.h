#pragma once

#include "design/design_run.h"
#include "design/survey_reduction.h"

#include <array>
#include <optional>
#include <vector>

namespace veln {

inline constexpr int DFactorCount = 7;

/// Which D-factors an automatic selection tries: 0.90, 1.00 and 1.10, or all seven.
enum class SelectionScope { Limited, Full };

/// What an automatic selection is to try.
struct SelectionPlan {
  int pnum = 1;  ///< strata analysed, 1 to 9
  SelectionScope Scope = SelectionScope::Full;
};

/// The scores of an automatic design selection (`optval`): Opt-Criteria to four decimals by stratum and
/// D-factor index. A combination that was not tried or could not be made has none.
struct SelectionScores : SelectionPlan {
  std::array<std::array<std::optional<double>, DFactorCount>, MostStrata> optval;  ///< [stratum - 1][f - 1]
};

/// One combination: stratum from 1, D-factor index f from 1 to 7.
struct Combination {
  int Stratum = 1;
  int FactorIndex = 1;
  bool operator==(const Combination&) const = default;
};

/// The combinations of a plan in their order: by stratum, and within a stratum by D-factor.
std::vector<Combination> CombinationsOf(const SelectionPlan& plan);

/// The score of a combination.
const std::optional<double>& ScoreOf(const SelectionScores& scores, const Combination& combination);

/// The D-factor of an index, in hundredths: 85 to 115 in steps of 5.
int DFactorOf(int factorIndex);

/// The strata that an automatic selection analyses: 1 below 400 sites.
int StrataToAnalyse(int surveySize);

/// Makes a design for every combination of the plan at the size and with the scores of `settings`, always
/// with support sites, and keeps none. Empty if the observer stops it between designs. A combination that
/// can't be made has no score; the others go on. The record is as it was in either case.
std::optional<SelectionScores> ScoreDesigns(SurveyState& state, const DesignSettings& settings,
                                            const SelectionPlan& plan, RunObserver& observer);

/// What the scores tell.
struct SelectionSummary {
  std::optional<Combination>
      Best;  ///< lowest score; of equal ones the lowest stratum, then the lowest D-factor
  double BestScore = 0;
  double Limit = 0;    ///< scores below it are acceptable: within 10 % of the best, or below 1.3
  int Acceptable = 0;  ///< how many are
};

/// Finds the best and the acceptable combinations (`LoadGrid`, `IdentifyBestDsgns`). Without a score below
/// 10000 there is no best one.
SelectionSummary SummariseScores(const SelectionScores& scores);

/// Whether a score is acceptable.
bool IsAcceptable(const SelectionSummary& summary, const std::optional<double>& score);

}  // namespace veln
