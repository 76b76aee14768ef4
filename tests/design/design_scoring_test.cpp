#include "design/design_scoring.h"

#include "design_fields.h"

namespace veln {
namespace {

TEST(DesignScoring, StrataAndCombinationsFollowTheSurveySize)
{
  for (const auto& [size, strata] : {std::pair{399, 1}, {400, 2}, {1200, 4}, {30000, 9}}) {
    EXPECT_EQ(StrataToAnalyse(size), strata) << size;
    EXPECT_EQ(CombinationsOf({strata, SelectionScope::Full}).size(), strata * 7U);
    EXPECT_EQ(CombinationsOf({strata, SelectionScope::Limited}).size(), strata * 3U);
  }
}

/// Settings that a scoring keeps, and others that it does not.
DesignSettings MovedSettings()
{
  DesignSettings settings = LimitedDesign();
  settings.DFactor = 1.12;
  settings.Parsing = {4, 2};
  settings.IncludeSupportSites = false;
  settings.IgnoreTA = true;
  return settings;
}

TEST(DesignScoring, ScoresAreThoseOfSingleRunsAtFourDecimals)
{
  SurveyState state = AcceptedSurvey(TransectSurvey(30, 40));
  state.TransitionDone = true;  // and ignored
  state.TransitionScore.assign(1200, 0);
  const SurveyState before = state;
  for (const SelectionScope scope : {SelectionScope::Limited, SelectionScope::Full}) {
    const bool limited = scope == SelectionScope::Limited;
    RunTranscript transcript;
    const auto scores = ScoreDesigns(state, MovedSettings(), {4, scope}, transcript);
    ASSERT_TRUE(scores);
    EXPECT_EQ(std::ranges::count_if(transcript.Lines, [](auto& line) { return line.starts_with("support"); }),
              limited ? 12 : 28);  // made whatever the setting says
    EXPECT_EQ(transcript.Designs.front() + ", " + transcript.Designs.back(),
              limited ? "1 of 12, 12 of 12" : "1 of 28, 28 of 28");
    EXPECT_EQ(state, before);
    EXPECT_EQ(transcript.Lines.back(),
              "score " + FormatNumber(*scores->optval[3][limited ? 5 : 6], "0.0###"));
    for (int stratum = 1; stratum <= 9; ++stratum) {
      for (int f = 1; f <= 7; ++f) {
        const std::optional<double> score = ScoreOf(*scores, {stratum, f});
        if (stratum > 4 || (limited && f % 2 == 1)) {
          EXPECT_FALSE(score);
          continue;
        }
        DesignSettings settings = MovedSettings();
        settings.DFactor = *ParseNumber(FormatNumber(f / 20.0 + 0.8, "0.00"));
        settings.Parsing = {4, stratum - 1};
        settings.Rounding = "0.0000";
        RunObserver silent;
        EXPECT_EQ(score, MakeDesign(state, settings, silent).OptCriteria) << stratum << ' ' << f;
      }
    }
  }
}

TEST(DesignScoring, CombinationThatCanNotBeMadeHasNoScore)
{
  SurveyState state = AcceptedSurvey(TransectSurvey(10, 10));
  for (const auto& [free, size, unscored] : {std::tuple{24, DesignSize::Limited, 0},
                                             {23, DesignSize::Limited, 3},
                                             {24, DesignSize::Standard, 3}}) {  // 30 candidates
    state.SiteStatus.assign(100, site_status::Masked);
    std::fill_n(state.SiteStatus.begin(), free, site_status::Free);
    DesignSettings settings;
    settings.Size = size;
    RunTranscript transcript;
    const auto scores = ScoreDesigns(state, settings, {1, SelectionScope::Limited}, transcript);
    ASSERT_TRUE(scores);
    EXPECT_EQ(std::ranges::count(transcript.Lines, "no score"), unscored) << free;
    EXPECT_EQ(SummariseScores(*scores).Best.has_value(), unscored == 0);
  }
}

/// Scores by stratum and D-factor index; all others are the same, or empty.
SelectionSummary SummaryOf(std::initializer_list<std::pair<Combination, double>> cells, double others = 0)
{
  SelectionScores scores{{3, SelectionScope::Full}, {}};
  if (others > 0) {
    for (auto& row : scores.optval) {
      row.fill(others);
    }
  }
  for (const auto& [cell, score] : cells) {
    scores.optval.at(static_cast<std::size_t>(cell.Stratum) - 1)
        .at(static_cast<std::size_t>(cell.FactorIndex) - 1) = score;
  }
  return SummariseScores(scores);
}

TEST(SelectionSummary, BestIsTheLowestAndOfEqualOnesTheFirst)
{
  const SelectionSummary three = SummaryOf({{{3, 1}, 1.25}, {{2, 6}, 1.25}, {{2, 3}, 1.25}}, 2.0);
  EXPECT_EQ(three.Best, (Combination{2, 3}));
  EXPECT_EQ(three.BestScore, 1.25);
  EXPECT_EQ(three.Acceptable, 3);
  EXPECT_EQ(SummaryOf({}, 2.0).Best, Combination{});
  EXPECT_EQ(SummaryOf({{{1, 4}, 9999.9999}}).Best, (Combination{1, 4}));
  EXPECT_FALSE(SummaryOf({{{1, 1}, 10000}}).Best);
  EXPECT_FALSE(IsAcceptable(SummaryOf({{{1, 1}, 10000}}), 10000));
}

TEST(SelectionSummary, AcceptableIsBelowTheLimitOfTenPercentOrOnePointThree)
{
  EXPECT_EQ(SummaryOf({}, 2.0).Acceptable, 21);
  EXPECT_DOUBLE_EQ(SummaryOf({}, 2.0).Limit, 2.2);
  EXPECT_EQ(SummaryOf({{{1, 1}, 1.0}, {{1, 2}, 1.2999}, {{2, 1}, 1.3}}).Acceptable,
            2);  // not the limit itself
  EXPECT_EQ(SummaryOf({{{1, 1}, 1.2}, {{1, 2}, 1.3199}, {{2, 1}, 1.3201}}).Acceptable, 2);
  const SelectionSummary alone = SummaryOf({{{2, 5}, 1.6}, {{2, 6}, 1.7601}});
  EXPECT_EQ(alone.Acceptable, 1);
  EXPECT_FALSE(IsAcceptable(alone, std::nullopt));
}

}  // namespace
}  // namespace veln
