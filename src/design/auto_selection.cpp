#include "design/auto_selection.h"

#include "design/survey_reduction.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace veln {

namespace {

constexpr double WorstScore = 10000;

std::vector<int> FactorIndexes(bool limited)
{
  return limited ? std::vector{2, 4, 6} : std::vector{1, 2, 3, 4, 5, 6, 7};
}

std::vector<Combination> Combinations(int strata, bool limited)
{
  std::vector<Combination> combinations;
  for (int stratum = 1; stratum <= strata; ++stratum) {
    for (const int factorIndex : FactorIndexes(limited)) {
      combinations.push_back({stratum, factorIndex});
    }
  }
  return combinations;
}

/// Makes the design of one combination for its score alone; none if the survey does not allow it.
std::optional<double> ScoreCombination(SrsForm& form, SurveyState& state, Dialogs& dialogs,
                                       RunObserver& observer)
{
  constexpr int FewestSites = 24;
  ClearOldTS(state);
  const int available = DetermineAvSites(state);
  if (available < FewestSites) {
    return std::nullopt;
  }
  InitPossSP(form, state, available, dialogs);
  DesignSettings settings = form.Settings();
  settings.IncludeSupportSites = true;
  settings.Rounding = "0.0000";
  try {
    return MakeDesign(state, settings, observer).OptCriteria;
  } catch (const Refusal&) {
    return std::nullopt;  // an empty stratum is a result here: the combination has no score
  }
}

/// The window goes back to D-factor 1.00, no parsing and its rules on available sites.
void EndSelection(SrsForm& form, SurveyState& state, Dialogs& dialogs)
{
  ClearOldTS(state);
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
  SetParseValues(form, 1, 0);
  form.Check3 = false;
  form.HScroll1 = PlainDFactor;
}

}  // namespace

std::vector<Combination> CombinationsOf(const SelectionScores& scores)
{
  return Combinations(scores.pnum, scores.LOA);
}

const std::optional<double>& ScoreOf(const SelectionScores& scores, const Combination& combination)
{
  return scores.optval.at(static_cast<std::size_t>(combination.Stratum) - 1)
      .at(static_cast<std::size_t>(combination.FactorIndex) - 1);
}

int DFactorOf(int factorIndex)
{
  constexpr int Step = 5;
  return LowestDFactor + Step * factorIndex;
}

int StrataToAnalyse(int surveySize)
{
  return surveySize < FewestSitesForParsing ? 1 : CountStrata(surveySize);
}

int DesignsToAnalyse(int surveySize, bool limited)
{
  return static_cast<int>(Combinations(StrataToAnalyse(surveySize), limited).size());
}

bool IsAcceptable(const SelectionSummary& summary, const std::optional<double>& score)
{
  return summary.Best && score && *score < summary.Limit;
}

SelectionSummary SummariseScores(const SelectionScores& scores)
{
  constexpr double Tolerance = 1.1;
  constexpr double AlwaysAcceptable = 1.3;
  constexpr double Hundredths = 100;
  const std::vector<Combination> combinations = CombinationsOf(scores);
  SelectionSummary summary;
  summary.BestScore = WorstScore;
  for (const Combination& combination : combinations) {
    const auto& score = ScoreOf(scores, combination);
    if (score && *score < summary.BestScore) {
      summary.BestScore = *score;
      summary.Best = combination;
    }
  }
  if (!summary.Best) {
    summary.lblBest = "No combination of strata and D_Factor has a usable score.";
    return summary;
  }
  summary.Limit = std::max(summary.BestScore * Tolerance, AlwaysAcceptable);
  for (const Combination& combination : combinations) {
    summary.Acceptable += IsAcceptable(summary, ScoreOf(scores, combination)) ? 1 : 0;
  }
  summary.lblBest = "The best design was generated using strata " + NumberToString(summary.Best->Stratum) +
                    " and a D_Factor of " + NumberToString(DFactorOf(summary.Best->FactorIndex) / Hundredths);
  summary.lblAccpt = summary.Acceptable < 2 ? "The best design appears to be the only acceptable design."
                                            : "There appear to be " + NumberToString(summary.Acceptable) +
                                                  " acceptable designs.";
  return summary;
}

std::optional<SelectionScores> SelectDesigns(SrsForm& form, SurveyState& state, bool limited,
                                             Dialogs& dialogs, RunObserver& observer)
{
  RequireReady(form);
  const int strata = StrataToAnalyse(state.SurveySize);
  const std::vector<Combination> combinations = Combinations(strata, limited);
  const auto count = static_cast<int>(combinations.size());
  if (!dialogs.Ask("Note: there are " + NumberToString(count) +
                   " designs to analyze.\nDo you still wish to invoke the ADS algorithm?")) {
    return std::nullopt;
  }
  const SrsForm formBefore = form;
  const std::vector<std::int16_t> statusBefore = state.SiteStatus;
  SelectionScores scores{strata, limited, {}};
  form.Check1 = true;
  int made = 0;
  for (const Combination& combination : combinations) {
    if (!observer.NextDesign(++made, count)) {
      form = formBefore;
      state.SiteStatus = statusBefore;
      return std::nullopt;
    }
    MoveDFactor(form, DFactorOf(combination.FactorIndex));
    SetParseValues(form, strata, combination.Stratum - 1);
    const auto score = ScoreCombination(form, state, dialogs, observer);
    scores.optval.at(static_cast<std::size_t>(combination.Stratum) - 1)
        .at(static_cast<std::size_t>(combination.FactorIndex) - 1) = score;
    observer.DesignScored(score);
  }
  EndSelection(form, state, dialogs);
  return scores;
}

}  // namespace veln
