#include "design/srs_form.h"

#include "design/auto_selection.h"
#include "design/survey_reduction.h"
#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* FifthDesign =
    "inform: Note: This was your 5th sampling design.  No further designs can be generated...";

class SrsFormTest : public testing::Test {
 protected:
  SrsFormTest() { std::filesystem::create_directories(directory_ / "data/farm"); }

  /// A survey of jittered rows; all sites but the first `free` are masked.
  SurveyState Survey(int free, int rows = 10)
  {
    SurveyState state = AcceptedSurvey(TransectSurvey(rows, 10), {}, directory_.Path());
    std::fill(state.SiteStatus.begin() + free, state.SiteStatus.end(), site_status::Masked);
    return state;
  }

  void Run(SrsForm& form, SurveyState& state) { RunDesign(form, state, dialogs_, silent_); }

  TemporaryDirectory directory_;
  ScriptedDialogs dialogs_;
  RunObserver silent_;
};

TEST_F(SrsFormTest, OpensWithTheStandardSizeAndTellsTheSurvey)
{
  SurveyState state = Survey(79);
  EXPECT_EQ(Describe(OpenSrs(state, dialogs_)),
            "open and ready; sizes 6 12* (20); D 0 1.00; TA 00; parsing 00 1/0; support 1; reduce 000000; "
            "design 1 of "
            "12 by 2\n"
            "Total Survey size =  100  Active (available) Survey size =  79\n"
            "(Total Survey Size =  100   Active Survey Size =  79)\n"
            "Cancel exit without invoking SRSS algorithm 0 0");
}

TEST_F(SrsFormTest, SizesCloseBelowTheirBorders)
{
  for (const auto& [free, sizes] : {std::pair{80, "6 12* 20"},
                                    {79, "6 12* (20)"},
                                    {48, "6 12* (20)"},
                                    {47, "6* (12) (20)"},
                                    {24, "6* (12) (20)"}}) {
    SurveyState state = Survey(free);
    const SrsForm form = OpenSrs(state, dialogs_);
    EXPECT_EQ(SizesOf(form), sizes) << free;
    EXPECT_FALSE(form.Closed);
  }
  EXPECT_EQ(dialogs_.Said, Lines{});
}

TEST_F(SrsFormTest, BelowTwentyFourSitesTheWindowDoesNotOpen)
{
  SurveyState state = Survey(23);
  EXPECT_TRUE(OpenSrs(state, dialogs_).Closed);
  EXPECT_EQ(
      dialogs_.Said,
      (Lines{"inform: There are not enough avaliable survey sites to generate any more Sampling Designs"}));
  EXPECT_FALSE(state.Menu.IsEnabled(MenuEntry::mnuSRS));
  EXPECT_NE(RefusalOf([&] { OpenSrs(state, dialogs_); }), "not refused");
}

TEST_F(SrsFormTest, SelectionMovesDownWithTheSitesAndNothingOpensAgain)
{
  SurveyState state = Survey(100);
  SrsForm form = OpenSrs(state, dialogs_);
  ChooseSize(form, state, DesignSize::Full);
  EXPECT_EQ(form.LblSS, "20");
  InitPossSP(form, state, 79, dialogs_);
  EXPECT_EQ(SizesOf(form) + " " + form.LblSS, "6 12* (20) 12");
  ChooseSize(form, state, DesignSize::Limited);
  InitPossSP(form, state, 47, dialogs_);
  InitPossSP(form, state, 100, dialogs_);
  EXPECT_EQ(SizesOf(form), "6* (12) (20)");

  form = OpenSrs(state, dialogs_);
  ChooseSize(form, state, DesignSize::Full);
  IncludeSupport(form, false, dialogs_);
  InitPossSP(form, state, 47, dialogs_);  // from 18 to 10 and on to 5
  EXPECT_EQ(SizesOf(form) + " " + form.LblSS, "5* (10) (18) 5");
}

TEST_F(SrsFormTest, SupportSettingChangesCaptionsAndSampleSize)
{
  SurveyState state = Survey(100);
  SrsForm form = OpenSrs(state, dialogs_);
  const auto captions = [&form] {
    return form.OptionCaption(DesignSize::Limited) + ", " + form.OptionCaption(DesignSize::Standard) + ", " +
           form.OptionCaption(DesignSize::Full) + ": " + form.LblSS;
  };
  IncludeSupport(form, false, dialogs_);
  EXPECT_EQ(captions(), "n=5 (limited design), n=10 (standard design), n=18 (full design): 10");
  IncludeSupport(form, true, dialogs_);
  EXPECT_EQ(captions(), "n=6 (limited design), n=12 (standard design), n=20 (full design): 12");
  EXPECT_EQ(dialogs_.Said, (Lines{"inform: Support sites will be excluded from all sample designs.",
                                  "inform: Support sites will be included in all sample designs."}));
}

TEST_F(SrsFormTest, DFactorStaysInForceBehindItsHiddenControls)
{
  SurveyState state = Survey(100);
  SrsForm form = OpenSrs(state, dialogs_);
  AdjustDFactor(form, true);
  MoveDFactor(form, 110);
  AdjustDFactor(form, false);
  Run(form, state);
  EXPECT_EQ(form.Finished->Settings.DFactor, 1.1);
  EXPECT_DOUBLE_EQ(form.Finished->Levels[1][1], 1.925);
  DiscardDesign(form, state, dialogs_);
  MoveDFactor(form, 79);
  EXPECT_EQ(form.Text1(), "0.80");
  MoveDFactor(form, 121);
  EXPECT_EQ(form.Text1(), "1.20");
}

TEST_F(SrsFormTest, ScoresAndStrataAreOpenOnlyWhereTheSurveyHasThem)
{
  SurveyState state = Survey(100);
  SrsForm form = OpenSrs(state, dialogs_);
  EXPECT_NE(RefusalOf([&] { IgnoreTransition(form, true); }), "not refused");
  state.TransitionDone = true;
  form = OpenSrs(state, dialogs_);
  IgnoreTransition(form, true);
  EXPECT_TRUE(form.Settings().IgnoreTA);

  state.SurveySize = 399;
  form = OpenSrs(state, dialogs_);
  EXPECT_EQ(RefusalOf([&] { SwitchParsing(form, true); }), "Error!  Invalid Parsing Values!");
  state.SurveySize = 400;
  form = OpenSrs(state, dialogs_);
  SwitchParsing(form, true);
  SetParseValues(form, 2, 1);
  EXPECT_TRUE(form.Listing(state).Parsing);
  SwitchParsing(form, false);
  EXPECT_EQ(form.Parsing, Stratum{});
}

TEST_F(SrsFormTest, ParseValuesAreHeldToTheirRange)
{
  SrsForm form;
  for (const auto& [denominator, modulus] : {std::pair{3, 2}, {10, 9}, {2, 0}, {1, 0}}) {
    EXPECT_EQ(RefusalOf([&, d = denominator, m = modulus] { SetParseValues(form, d, m); }), "not refused");
    EXPECT_EQ(form.Parsing, (Stratum{denominator, modulus}));
  }
  for (const auto& [denominator, modulus] : {std::pair{3, 3}, {11, 0}, {0, 0}, {2, -1}, {-1, -2}, {11, 10}}) {
    EXPECT_EQ(RefusalOf([&, d = denominator, m = modulus] { SetParseValues(form, d, m); }),
              "Error!  Invalid Parsing Values!");
  }
  EXPECT_EQ(form.Parsing, Stratum{});
}

TEST_F(SrsFormTest, FinishedDesignClosesAllSettingsUntilADecision)
{
  SurveyState state = Survey(100);
  state.TransitionDone = true;
  state.TransitionScore.assign(100, 0);
  SrsForm form = OpenSrs(state, dialogs_);
  EXPECT_NE(RefusalOf([&] { SaveDesign(form, state, dialogs_, FixedClock); }), "not refused");
  form.Check3Enabled = true;
  form.Reduction = {true, {true, true, true, true}, true};
  Run(form, state);
  const SurveyState survey = state;
  const std::string window = Describe(form);
  EXPECT_THAT(window, StartsWith("open and finished; "));
  EXPECT_THAT(window, HasSubstr("\nFinishedreturn to main program menu"));
  const std::vector<std::function<void()>> actions = {
      [&] { ChooseSize(form, state, DesignSize::Limited); },
      [&] { AdjustDFactor(form, true); },
      [&] { MoveDFactor(form, 90); },
      [&] { IgnoreTransition(form, true); },
      [&] { SwitchParsing(form, true); },
      [&] { IncludeSupport(form, false, dialogs_); },
      [&] { Run(form, state); },
      [&] { ReduceGridSize(form, state, 2, dialogs_); },
      [&] { RecoverGridSites(form, state, dialogs_); },
      [&] { SelectDesigns(form, state, true, dialogs_, silent_); }};
  for (const auto& action : actions) {
    EXPECT_EQ(RefusalOf(action), "Please save the finished design or generate a new one first.");
  }
  EXPECT_EQ(Describe(form), window);
  EXPECT_EQ(state, survey);
  EXPECT_EQ(dialogs_.Said, Lines{});
}

TEST_F(SrsFormTest, SaveGoesOnWithTheNextDesign)
{
  SurveyState state = Survey(400, 40);
  SrsForm form = OpenSrs(state, dialogs_);
  SwitchParsing(form, true);
  SetParseValues(form, 2, 1);
  Run(form, state);
  const auto [opt, loops] = std::pair{form.Finished->OptCriteria, form.Finished->LoopCount};
  EXPECT_EQ(form.LblMS, "Algorithm FINISHED:  Final Opt-Criteria = " + NumberToString(opt));
  SaveDesign(form, state, dialogs_, FixedClock);
  EXPECT_THAT(Describe(form), StartsWith("open and ready; sizes 6 12* 20; D 0 1.00; TA 00; "
                                         "parsing 01 1/0; support 1; reduce 000000; design 2 of 12"));
  EXPECT_EQ(form.Command3Caption + form.SurveySizeNote,
            "Finished(Total Survey Size =  400   Active Survey Size =  388)");
  EXPECT_EQ(std::pair(form.OptCriteria, form.LoopCount), std::pair(opt, loops));
  EXPECT_EQ(std::ranges::count(state.SiteStatus, 1), 12);
  EXPECT_TRUE(state.Menu.IsEnabled(MenuEntry::mnuSHowMap));
  EXPECT_FALSE(state.Menu.IsEnabled(MenuEntry::mnuMask));
  const std::string report = ReadText(directory_ / "data/farm/ab12rsd1.txt");
  EXPECT_THAT(report, HasSubstr("Total Survey Size =  400   Active Survey Size =  400)"));
  EXPECT_THAT(report, HasSubstr("Strata # 2 \r\n"));
}

TEST_F(SrsFormTest, DiscardLeavesNoTraceAndTheSameRunGivesTheSameDesign)
{
  SurveyState state = Survey(100);
  const SurveyState before = state;
  SrsForm form = OpenSrs(state, dialogs_);
  Run(form, state);
  const TargetSites first = form.Finished->Sites;
  DiscardDesign(form, state, dialogs_);
  EXPECT_EQ(state, before);
  EXPECT_EQ(form.LblDN, "1");
  EXPECT_FALSE(form.Finished);
  Run(form, state);
  EXPECT_EQ(form.Finished->Sites, first);
  CloseSrs(form, state);
  EXPECT_EQ(state, before);
  EXPECT_EQ(ListFiles(directory_ / "data/farm"), Lines{});
}

TEST_F(SrsFormTest, FifthDesignEndsTheWork)
{
  SurveyState state = Survey(100);
  SrsForm form = OpenSrs(state, dialogs_);
  for (int design = 1; design <= 5; ++design) {
    EXPECT_FALSE(form.Closed);
    EXPECT_EQ(form.LblDN, std::to_string(design));
    ChooseSize(form, state, DesignSize::Limited);
    Run(form, state);
    SaveDesign(form, state, dialogs_, FixedClock);
  }
  EXPECT_TRUE(form.Closed);
  EXPECT_FALSE(state.Menu.IsEnabled(MenuEntry::mnuSRS));
  EXPECT_EQ(dialogs_.Said.size(), 6U);
  EXPECT_EQ(dialogs_.Said.back(), FifthDesign);
  EXPECT_EQ(ListFiles(directory_ / "data/farm").size(), 15U);
}

TEST_F(SrsFormTest, SaveThatLeavesTooFewSitesClosesTheWindow)
{
  for (const int free : {29, 30}) {  // 6 go: 23 are too few, 24 are enough
    SurveyState state = Survey(free);
    SrsForm form = OpenSrs(state, dialogs_);
    Run(form, state);
    SaveDesign(form, state, dialogs_, FixedClock);
    EXPECT_EQ(form.Closed, free == 29);
    EXPECT_EQ(state.Menu.IsEnabled(MenuEntry::mnuSRS), free == 30);
    EXPECT_EQ(std::ranges::count(dialogs_.Said, std::string("inform: ") + TooFewSites), 1);
  }
}

TEST_F(SrsFormTest, FifthDesignThatLeavesTooFewSitesTellsBoth)
{
  SurveyState state = Survey(48);  // 24 for the fifth design, 18 behind it
  state.DesignCount = 4;
  std::fill_n(state.SiteStatus.begin(), 24, std::int16_t{1});
  SrsForm form = OpenSrs(state, dialogs_);
  Run(form, state);
  SaveDesign(form, state, dialogs_, FixedClock);
  EXPECT_EQ(dialogs_.Said, (Lines{"inform: SRSD sampling design information has been saved to ab12rsd5.txt",
                                  std::string("inform: ") + TooFewSites, FifthDesign}));
}

TEST_F(SrsFormTest, NoteTellsSupportSitesThatCouldNotBePlaced)
{
  std::vector<HandSite> sites;
  sites.reserve(48);
  for (int i = 0; i < 48; ++i) {
    sites.push_back({10.0 * i, 1.0 * i * i, i % 2 == 0 ? 1.0 + 0.03 * i : -1.0 - 0.03 * i});
  }
  SurveyState state = HandField(sites, 1, directory_.Path());
  SrsForm form = OpenSrs(state, dialogs_);
  Run(form, state);
  EXPECT_EQ(form.Finished->MissingSupportSites, 2);
  ASSERT_EQ(dialogs_.Said.size(), 1U);
  EXPECT_THAT(dialogs_.Said[0], StartsWith("inform: Note: 2 support sites could not be placed"));
  SaveDesign(form, state, dialogs_, FixedClock);
  const std::string report = ReadText(directory_ / "data/farm/ab12rsd1.txt");
  EXPECT_THAT(report, HasSubstr("Sample Size:  12 "));  // as chosen
  EXPECT_THAT(report, Not(HasSubstr("support site")));
  EXPECT_EQ(std::ranges::count(state.SiteStatus, 1), 10);
}

}  // namespace
}  // namespace veln
