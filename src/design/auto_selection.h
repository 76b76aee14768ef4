#pragma once

#include "design/srs_form.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace veln {

inline constexpr int MostStrata = 9;
inline constexpr int DFactorCount = 7;

/// The scores of an automatic design selection (`optval`): Opt-Criteria to four decimals by stratum and
/// D-factor index. A combination that was not tried or could not be made has none.
struct SelectionScores {
  int pnum = 1;      ///< strata analysed, 1 to 9
  bool LOA = false;  ///< the limited algorithm: only D-factors 0.90, 1.00 and 1.10
  std::array<std::array<std::optional<double>, DFactorCount>, MostStrata> optval;  ///< [stratum - 1][f - 1]
};

/// One combination: stratum from 1, D-factor index f from 1 to 7.
struct Combination {
  int Stratum = 1;
  int FactorIndex = 1;
  bool operator==(const Combination&) const = default;
};

/// The combinations that were tried, in their order: by stratum, and within a stratum by D-factor.
std::vector<Combination> CombinationsOf(const SelectionScores& scores);

/// The score of a combination.
const std::optional<double>& ScoreOf(const SelectionScores& scores, const Combination& combination);

/// The D-factor of an index, in hundredths: 85 to 115 in steps of 5.
int DFactorOf(int factorIndex);

/// What the results window tells of the scores.
struct SelectionSummary {
  std::optional<Combination>
      Best;  ///< lowest score; of equal ones the lowest stratum, then the lowest D-factor
  double BestScore = 0;
  double Limit = 0;    ///< scores below it are acceptable: within 10 % of the best, or below 1.3
  int Acceptable = 0;  ///< how many are
  std::string lblBest, lblAccpt;
};

/// The strata that an automatic selection analyses: 1 below 400 sites.
int StrataToAnalyse(int surveySize);

/// How many designs an automatic selection makes.
int DesignsToAnalyse(int surveySize, bool limited);

/// Whether a score is acceptable.
bool IsAcceptable(const SelectionSummary& summary, const std::optional<double>& score);

/// Finds the best and the acceptable combinations (`LoadGrid`, `IdentifyBestDsgns`). Without a score below
/// 10000 there is no best one and the text says so.
SelectionSummary SummariseScores(const SelectionScores& scores);

/// `mnuSRSAutoFull` and `mnuSRSAutoLimited`: asks, then makes a design for every combination of stratum and
/// D-factor at the size selected and saves none. Leaves D-factor 1.00 and no parsing. Empty if the user says
/// No or the observer stops it between designs, and nothing has changed then. A combination that can't be
/// made has no score; the others go on.
std::optional<SelectionScores> SelectDesigns(SrsForm& form, SurveyState& state, bool limited,
                                             Dialogs& dialogs, RunObserver& observer);

}  // namespace veln
