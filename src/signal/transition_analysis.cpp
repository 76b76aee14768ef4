#include "signal/transition_analysis.h"

#include "survey/field_extent.h"
#include "toolkit/number_text.h"
#include "toolkit/text_report.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr std::size_t Reach = 3;          // neighbours on either side
constexpr std::size_t ShortestSpan = 10;  // last minus first index of a row that can be scored

/// The third neighbours lie at comparable distances: neither more than twice as far as the other.
bool IsEvenlySpaced(const SurveyState& state, std::size_t i)
{
  const double d1 = SiteDistance(state, i, i - Reach);
  const double d2 = SiteDistance(state, i, i + Reach);
  return 0.5 * d2 <= d1 && 2 * d2 >= d1;
}

/// No site is missing between the third neighbours.
bool IsNumberedOn(const SurveyState& state, std::size_t i)
{
  constexpr int Step = static_cast<int>(Reach);
  return state.SiteId[i + Reach] == state.SiteId[i] + Step &&
         state.SiteId[i - Reach] == state.SiteId[i] - Step;
}

/// Root mean square difference of the six neighbours' z1 from the site's own.
double ComputeTV(const SurveyState& state, std::size_t i)
{
  constexpr double Neighbours = 6;
  const auto square = [&state, i](std::size_t j) {
    const double difference = state.Decorr1[j] - state.Decorr1[i];
    return difference * difference;
  };
  return std::sqrt(
      (square(i - 3) + square(i - 2) + square(i - 1) + square(i + 1) + square(i + 2) + square(i + 3)) /
      Neighbours);
}

void ScoreRow(const SurveyState& state, const SurveyRow& row, std::vector<double>& scores)
{
  const auto at = [&scores](std::size_t i) { return scores.begin() + static_cast<std::ptrdiff_t>(i); };
  if (row.End - row.Start < ShortestSpan) {
    std::fill(at(row.Start), at(row.End + 1), UnscorableSite);
    return;
  }
  for (std::size_t i = row.Start + Reach; i <= row.End - Reach; ++i) {
    scores[i] = IsEvenlySpaced(state, i) && IsNumberedOn(state, i) ? ComputeTV(state, i) : UnscorableSite;
  }
  std::fill(at(row.Start), at(row.Start + Reach), scores[row.Start + Reach]);
  std::fill(at(row.End - Reach + 1), at(row.End + 1), scores[row.End - Reach]);
}

}  // namespace

std::vector<double> TrnsAlys(const SurveyState& state, const std::vector<SurveyRow>& rows)
{
  std::vector<double> scores(state.Decorr1.size());
  for (const SurveyRow& row : rows) {
    ScoreRow(state, row, scores);
  }
  return scores;
}

int CountHighTVSites(const std::vector<double>& scores)
{
  return static_cast<int>(std::ranges::count_if(scores, [](double score) { return score > HighScore; }));
}

std::string ComposeTransitionFile(const SurveyState& state)
{
  TextReport report;
  report.Line("Transition Standard Deviations for Field ID: " + state.FieldId);
  for (std::size_t i = 0; i < state.SiteId.size(); ++i) {
    report.Number(state.SiteId[i])
        .Text("  ")
        .Text(FormatNumber(state.CoordX[i], "0.0###"))
        .Text("  ")
        .Text(FormatNumber(state.CoordY[i], "0.0###"))
        .Text("  ")
        .Text(FormatNumber(state.TransitionScore[i], "0.00##"))
        .EndLine();
  }
  return report.Content();
}

}  // namespace veln
