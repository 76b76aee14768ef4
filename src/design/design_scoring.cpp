#include "design/design_scoring.h"

#include "toolkit/refusal.h"

#include <algorithm>
#include <cstddef>

namespace veln {

namespace {

constexpr double WorstScore = 10000;
constexpr double Hundredths = 100;

/// Makes the design of one combination for its score alone; none if the survey does not allow it.
std::optional<double> ScoreCombination(SurveyState& state, const DesignSettings& settings,
                                       RunObserver& observer)
{
  if (DetermineAvSites(state) < FewestAvailable) {
    return std::nullopt;
  }
  try {
    return MakeDesign(state, settings, observer).OptCriteria;
  } catch (const Refusal&) {
    return std::nullopt;  // an empty stratum is a result here: the combination has no score
  }
}

template <class Scores>
auto& ScoreIn(Scores& scores, const Combination& combination)
{
  return scores.optval.at(static_cast<std::size_t>(combination.Stratum) - 1)
      .at(static_cast<std::size_t>(combination.FactorIndex) - 1);
}

}  // namespace

std::vector<Combination> CombinationsOf(const SelectionPlan& plan)
{
  std::vector<Combination> combinations;
  const bool limited = plan.Scope == SelectionScope::Limited;
  for (int stratum = 1; stratum <= plan.pnum; ++stratum) {
    for (int factorIndex = limited ? 2 : 1; factorIndex <= DFactorCount; factorIndex += limited ? 2 : 1) {
      combinations.push_back({stratum, factorIndex});
    }
  }
  return combinations;
}

const std::optional<double>& ScoreOf(const SelectionScores& scores, const Combination& combination)
{
  return ScoreIn(scores, combination);
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

std::optional<SelectionScores> ScoreDesigns(SurveyState& state, const DesignSettings& settings,
                                            const SelectionPlan& plan, RunObserver& observer)
{
  const std::vector<Combination> combinations = CombinationsOf(plan);
  DesignSettings tried = settings;
  tried.IncludeSupportSites = true;
  tried.Rounding = "0.0000";
  SelectionScores scores{plan, {}};
  int made = 0;
  for (const Combination& combination : combinations) {
    if (!observer.NextDesign(++made, static_cast<int>(combinations.size()))) {
      return std::nullopt;
    }
    tried.DFactor = DFactorOf(combination.FactorIndex) / Hundredths;
    tried.Parsing = {plan.pnum, combination.Stratum - 1};
    const auto score = ScoreCombination(state, tried, observer);
    ScoreIn(scores, combination) = score;
    observer.DesignScored(score);
  }
  return scores;
}

SelectionSummary SummariseScores(const SelectionScores& scores)
{
  constexpr double Tolerance = 1.1;
  constexpr double AlwaysAcceptable = 1.3;
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
    return summary;
  }
  summary.Limit = std::max(summary.BestScore * Tolerance, AlwaysAcceptable);
  for (const Combination& combination : combinations) {
    summary.Acceptable += IsAcceptable(summary, ScoreOf(scores, combination)) ? 1 : 0;
  }
  return summary;
}

bool IsAcceptable(const SelectionSummary& summary, const std::optional<double>& score)
{
  return summary.Best && score && *score < summary.Limit;
}

}  // namespace veln
