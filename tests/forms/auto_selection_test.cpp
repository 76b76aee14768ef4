#include "forms/auto_selection.h"

#include "forms/design_forms.h"
#include "forms/reduction_form.h"

namespace veln {
namespace {

using enum SelectionScope;

constexpr const char* Question12 =
    "ask: Note: there are  12 designs to analyze.\nDo you still wish to invoke the ADS algorithm?";

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

TEST(AutoSelection, NoAndAStopLeaveEverythingAsItWasAndTheEndGoesBackToPlainSettings)
{
  constexpr int Never = 99;
  for (const int stopAt : {0, 2, Never}) {
    ScriptedDialogs dialogs({stopAt > 0});
    MovedWindow window(dialogs);
    const SurveyState before = window.State;
    const std::string form = Describe(window.Form);
    RunTranscript transcript;
    transcript.StopAt = stopAt;
    const auto scores = SelectDesigns(window.Form, window.State, Limited, dialogs, transcript);
    EXPECT_EQ(dialogs.Said.back(), Question12);
    EXPECT_THAT(dialogs.Named, ElementsAre(Question::ScoreDesigns));
    EXPECT_EQ(window.State, before);
    if (stopAt < Never) {
      EXPECT_FALSE(scores);
      EXPECT_EQ(transcript.Designs.size(), static_cast<std::size_t>(stopAt));
      EXPECT_EQ(Describe(window.Form), form);
      continue;
    }
    ASSERT_TRUE(scores);
    EXPECT_EQ(scores->optval, ScoreDesigns(window.State, LimitedDesign(), {4, Limited}, transcript)->optval);
    EXPECT_THAT(Describe(window.Form),
                StartsWith("open and ready; sizes 5* 10 18; D 1 1.00; TA 00; parsing 01 1/0; support 0"));
  }
}

TEST(AutoSelection, SitesPickedByHandMeanwhileCount)
{
  ScriptedDialogs dialogs({true, true});
  SurveyState state = AcceptedSurvey(TransectSurvey(10, 10));
  std::fill(state.SiteStatus.begin() + 48, state.SiteStatus.end(), site_status::Masked);
  SrsForm form = OpenSrs(state, dialogs);
  state.SiteStatus[0] = site_status::Selected;  // 47 are left: too few for the size selected
  RunTranscript transcript;
  EXPECT_TRUE(SelectDesigns(form, state, Full, dialogs, transcript));
  EXPECT_EQ(std::ranges::count_if(transcript.Lines, [](auto& line) { return line.starts_with("cand"); }), 35);
  EXPECT_EQ(SizesOf(form), "6* (12) (20)");

  std::fill(state.SiteStatus.begin() + 24, state.SiteStatus.end(), site_status::Masked);  // 23
  const auto scores = SelectDesigns(form, state, Full, dialogs, transcript);
  ASSERT_TRUE(scores);
  EXPECT_FALSE(SummariseScores(*scores).Best);
  EXPECT_EQ(dialogs.Said.back(), std::string("inform: ") + TooFewSites);
  EXPECT_TRUE(form.Closed);
}

TEST(AutoSelection, TextsTellTheBestAndTheAcceptable)
{
  EXPECT_EQ(BestDesignText({Combination{2, 3}}),
            "The best design was generated using strata  2 and a D_Factor of  .95");
  EXPECT_EQ(BestDesignText({Combination{1, 4}}),
            "The best design was generated using strata  1 and a D_Factor of  1");
  EXPECT_EQ(AcceptableText({Combination{}, 1, 1.3, 2}), "There appear to be  2 acceptable designs.");
  EXPECT_EQ(AcceptableText({Combination{}, 1, 1.3, 1}),
            "The best design appears to be the only acceptable design.");
  EXPECT_EQ(BestDesignText({}) + AcceptableText({}),
            "No combination of strata and D_Factor has a usable score.");
}

}  // namespace
}  // namespace veln
