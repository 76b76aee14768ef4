#include "design/auto_selection.h"

#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

std::string Question(const std::string& count)
{
  return "ask: Note: there are " + count +
         " designs to analyze.\nDo you still wish to invoke the ADS algorithm?";
}

TEST(AutoSelection, StrataAndDesignsFollowTheSurveySize)
{
  const std::vector<std::pair<int, int>> cases = {{399, 1},  {400, 2},  {599, 2},  {600, 3},
                                                  {1000, 3}, {1200, 4}, {3600, 9}, {30000, 9}};
  for (const auto& [size, strata] : cases) {
    EXPECT_EQ(StrataToAnalyse(size), strata) << size;
    EXPECT_EQ(DesignsToAnalyse(size, false), strata * 7);
    EXPECT_EQ(DesignsToAnalyse(size, true), strata * 3);
  }
}

/// A survey of 1200 sites, and a window whose settings are all moved.
struct MovedWindow {
  SurveyState State = AcceptedSurvey(TransectSurvey(30, 40));
  SrsForm Form;

  explicit MovedWindow(Dialogs& dialogs) : Form(OpenSrs(State, dialogs))
  {
    ChooseSize(Form, State, DesignSize::Limited);
    MoveDFactor(Form, 112);
    SwitchParsing(Form, true);
    SetParseValues(Form, 4, 2);
    IncludeSupport(Form, false, dialogs);
  }
};

TEST(AutoSelection, NoAndAStopBetweenDesignsLeaveEverythingAsItWas)
{
  for (const int stopAt : {0, 1, 2, 12}) {
    ScriptedDialogs dialogs({stopAt > 0});
    MovedWindow window(dialogs);
    const SurveyState before = window.State;
    const std::string form = Describe(window.Form);
    RunTranscript transcript;
    transcript.StopAt = stopAt;
    EXPECT_FALSE(SelectDesigns(window.Form, window.State, true, dialogs, transcript));
    EXPECT_EQ(dialogs.Said.back(), Question(" 12"));
    EXPECT_EQ(transcript.Designs.size(), static_cast<std::size_t>(stopAt));
    EXPECT_EQ(window.State, before);
    EXPECT_EQ(Describe(window.Form), form);
  }
}

TEST(AutoSelection, ScoresAreThoseOfSingleRunsAtFourDecimals)
{
  for (const bool limited : {true, false}) {
    ScriptedDialogs dialogs({true});
    MovedWindow window(dialogs);
    const SurveyState before = window.State;
    RunTranscript transcript;
    const auto scores = SelectDesigns(window.Form, window.State, limited, dialogs, transcript);
    ASSERT_TRUE(scores);
    EXPECT_EQ(scores->pnum, 4);
    EXPECT_EQ(std::ranges::count_if(transcript.Lines, [](auto& line) { return line.starts_with("support"); }),
              limited ? 12 : 28);  // made whatever the setting says
    for (int stratum = 1; stratum <= 9; ++stratum) {
      for (int f = 1; f <= 7; ++f) {
        const std::optional<double> score = ScoreOf(*scores, {stratum, f});
        if (stratum > 4 || (limited && f % 2 == 1)) {
          EXPECT_FALSE(score);
          continue;
        }
        DesignSettings settings = LimitedDesign();
        settings.DFactor = *ParseNumber(FormatNumber(f / 20.0 + 0.8, "0.00"));
        settings.Parsing = {4, stratum - 1};
        settings.Rounding = "0.0000";
        SurveyState single = before;
        RunObserver silent;
        EXPECT_EQ(score, MakeDesign(single, settings, silent).OptCriteria) << stratum << ' ' << f;
      }
    }
    EXPECT_EQ(window.State, before);
    EXPECT_THAT(Describe(window.Form),
                StartsWith("open and ready; sizes 5* 10 18; D 1 1.00; TA 00; parsing 01 1/0; support 0"));
  }
}

TEST(AutoSelection, SurveyOutOfSitesHasNoScores)
{
  ScriptedDialogs dialogs({true});
  SurveyState state = AcceptedSurvey(TransectSurvey(10, 10));
  std::fill(state.SiteStatus.begin() + 24, state.SiteStatus.end(), site_status::Masked);
  SrsForm form = OpenSrs(state, dialogs);
  state.SiteStatus[0] = site_status::Selected;  // picked by hand while the window is open: 23 are left
  RunObserver silent;
  const auto scores = SelectDesigns(form, state, false, dialogs, silent);
  ASSERT_TRUE(scores);
  EXPECT_THAT(SummariseScores(*scores).lblBest, HasSubstr("usable score"));
  EXPECT_EQ(dialogs.Said, (Lines{Question(" 7"), std::string("inform: ") + TooFewSites}));
  EXPECT_TRUE(form.Closed);
}

/// Scores by stratum and D-factor index; all others are empty.
SelectionSummary SummaryOf(std::initializer_list<std::pair<Combination, double>> cells, double others = 0)
{
  SelectionScores scores;
  scores.pnum = 3;
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
  const SelectionSummary summary = SummaryOf({{{3, 1}, 1.25}, {{2, 6}, 1.25}, {{2, 3}, 1.25}}, 2.0);
  EXPECT_EQ(summary.lblBest, "The best design was generated using strata  2 and a D_Factor of  .95");
  EXPECT_EQ(summary.lblAccpt, "There appear to be  3 acceptable designs.");
  EXPECT_EQ(SummaryOf({}, 2.0).lblBest,
            "The best design was generated using strata  1 and a D_Factor of  .85");
  EXPECT_EQ(SummaryOf({{{1, 4}, 1.0}}).lblBest,
            "The best design was generated using strata  1 and a D_Factor of  1");
}

TEST(SelectionSummary, AcceptableIsBelowTheLimitOfTenPercentOrOnePointThree)
{
  EXPECT_EQ(SummaryOf({}, 2.0).Acceptable, 21);
  EXPECT_DOUBLE_EQ(SummaryOf({}, 2.0).Limit, 2.2);
  EXPECT_EQ(SummaryOf({{{1, 1}, 1.0}, {{1, 2}, 1.2999}, {{2, 1}, 1.3}}).Acceptable,
            2);  // the limit itself is not
  EXPECT_EQ(SummaryOf({{{1, 1}, 1.2}, {{1, 2}, 1.3199}, {{2, 1}, 1.3201}}).Acceptable, 2);
  const SelectionSummary alone = SummaryOf({{{2, 5}, 1.6}, {{2, 6}, 1.7601}});
  EXPECT_EQ(alone.lblAccpt, "The best design appears to be the only acceptable design.");
  EXPECT_FALSE(IsAcceptable(alone, std::nullopt));
}

TEST(SelectionSummary, ScoresFromTenThousandAreNotUsable)
{
  EXPECT_FALSE(SummaryOf({{{1, 1}, 10000}}).Best);
  EXPECT_FALSE(IsAcceptable(SummaryOf({{{1, 1}, 10000}}), 10000));
  EXPECT_TRUE(SummaryOf({{{1, 1}, 9999.9999}}).Best);
}

}  // namespace
}  // namespace veln
