#include "forms/srs_form.h"

#include "forms/auto_selection.h"
#include "forms/design_forms.h"
#include "forms/reduction_form.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* FifthDesign =
    "inform: Note: This was your 5th sampling design.  No further designs can be generated...";
const std::string NoMoreSites = std::string("inform: ") + TooFewSites;

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
  void Save(SrsForm& form, SurveyState& state) { SaveDesign(form, state, dialogs_, FixedClock); }

  TemporaryDirectory directory_;
  ScriptedDialogs dialogs_;
  RunObserver silent_;
};

TEST_F(SrsFormTest, OpensWithTheLargestSizeUpToTheStandardOne)
{
  for (const auto& [free, sizes] : {std::pair{80, "6 12* 20"},
                                    {79, "6 12* (20)"},
                                    {48, "6 12* (20)"},
                                    {47, "6* (12) (20)"},
                                    {24, "6* (12) (20)"}}) {
    SurveyState state = Survey(free);
    const std::string count = std::to_string(free);
    EXPECT_EQ(Describe(OpenSrs(state, dialogs_)),
              std::string("open and ready; sizes ") + sizes +
                  "; D 0 1.00; TA 00; parsing 00 1/0; support 1; reduce 000000; design 1 of " +
                  (free < 48 ? "6" : "12") +
                  " by 2\nTotal Survey size =  100  Active (available) Survey size =  " + count +
                  "\n(Total Survey Size =  100   Active Survey Size =  " + count +
                  ")\nCancel exit without invoking SRSS algorithm 0 0");
  }
  EXPECT_EQ(dialogs_.Said, Lines{});
  SurveyState state = Survey(23);
  EXPECT_TRUE(OpenSrs(state, dialogs_).Closed);
  EXPECT_EQ(dialogs_.Said, Lines{NoMoreSites});
  EXPECT_NE(WholeRefusalOf(state, [&] { OpenSrs(state, dialogs_); }), "not refused");  // the menu is closed
}

TEST_F(SrsFormTest, SelectionMovesDownWithTheSitesAndNothingOpensAgain)
{
  SurveyState state = Survey(100);
  SrsForm form = OpenSrs(state, dialogs_);
  ChooseSize(form, state, DesignSize::Full);
  EXPECT_EQ(form.LblSS(), "20");
  IncludeSupport(form, false, dialogs_);
  InitPossSP(form, state, 79, dialogs_);
  EXPECT_EQ(SizesOf(form) + " " + form.LblSS(), "5 10* (18) 10");
  InitPossSP(form, state, 47, dialogs_);
  InitPossSP(form, state, 100, dialogs_);
  EXPECT_EQ(SizesOf(form) + " " + form.LblSS(), "5* (10) (18) 5");
  IncludeSupport(form, true, dialogs_);
  EXPECT_EQ(form.OptionCaption(DesignSize::Limited) + form.OptionCaption(DesignSize::Standard) +
                form.OptionCaption(DesignSize::Full) + form.LblSS(),
            "n=6 (limited design)n=12 (standard design)n=20 (full design)6");
  EXPECT_EQ(dialogs_.Said, (Lines{"inform: Support sites will be excluded from all sample designs.",
                                  "inform: Support sites will be included in all sample designs."}));
}

TEST_F(SrsFormTest, SettingsGoIntoTheRunHeldToWhatTheSurveyHas)
{
  SurveyState state = Survey(100);
  SrsForm form = OpenSrs(state, dialogs_);
  EXPECT_NE(RefusalOf([&] { IgnoreTransition(form, true); }), "not refused");
  state.TransitionDone = true;
  state.SurveySize = 399;
  form = OpenSrs(state, dialogs_);
  EXPECT_EQ(RefusalOf([&] { SwitchParsing(form, true); }), InvalidParsing);
  state.SurveySize = 400;
  form = OpenSrs(state, dialogs_);
  IgnoreTransition(form, true);
  SwitchParsing(form, true);
  SetParseValues(form, 2, 1);
  AdjustDFactor(form, true);
  MoveDFactor(form, 110);
  AdjustDFactor(form, false);  // the D-factor stays in force behind its hidden controls
  const LevelListing listing = form.Listing(state);
  EXPECT_EQ(listing.Settings.DFactor, 1.1);
  EXPECT_EQ(listing.Settings.Parsing, (Stratum{2, 1}));
  EXPECT_TRUE(listing.Settings.IgnoreTA && listing.Parsing && !listing.TransitionCounts);
  EXPECT_EQ(listing.SignalCount, 2);
  SwitchParsing(form, false);
  EXPECT_EQ(form.Parsing, Stratum{});
  for (const auto& [moved, shown] : {std::pair{79, "0.80"}, {121, "1.20"}}) {
    MoveDFactor(form, moved);
    EXPECT_EQ(form.Text1(), shown);
  }
}

TEST_F(SrsFormTest, ParseValuesAreHeldToTheirRange)
{
  SrsForm form;
  for (const auto& [denominator, modulus] : {std::pair{3, 2}, {10, 9}, {2, 0}, {1, 0}}) {
    SetParseValues(form, denominator, modulus);
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
  EXPECT_NE(WholeRefusalOf(state, [&] { Save(form, state); }), "not refused");
  form.Check3Enabled = true;
  form.Reduction = {true, {true, true, true, true}, true};
  Run(form, state);
  const std::string window = Describe(form);
  EXPECT_THAT(window,
              AllOf(StartsWith("open and finished; "), HasSubstr("\nFinishedreturn to main program menu")));
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
      [&] { SelectDesigns(form, state, SelectionScope::Limited, dialogs_, silent_); }};
  for (const auto& action : actions) {
    EXPECT_EQ(WholeRefusalOf(state, action), "Please save the finished design or generate a new one first.");
  }
  EXPECT_EQ(Describe(form), window);
  EXPECT_EQ(dialogs_.Said, Lines{});
}

TEST_F(SrsFormTest, SaveGoesOnWithTheNextDesign)
{
  SurveyState state = Survey(400, 40);
  SrsForm form = OpenSrs(state, dialogs_);
  SwitchParsing(form, true);
  SetParseValues(form, 2, 1);
  Run(form, state);
  const Design made = *form.Finished;
  EXPECT_EQ(form.LblMS, "Algorithm FINISHED:  Final Opt-Criteria = " + NumberToString(made.OptCriteria));
  EXPECT_EQ(std::ranges::count(state.SiteStatus, site_status::Candidate), 30);
  Save(form, state);
  EXPECT_THAT(Describe(form), StartsWith("open and ready; sizes 6 12* 20; D 0 1.00; TA 00; "
                                         "parsing 01 1/0; support 1; reduce 000000; design 2 of 12"));
  EXPECT_EQ(form.Command3Caption + form.SurveySizeNote,
            "Finished(Total Survey Size =  400   Active Survey Size =  388)");
  EXPECT_EQ(std::pair(form.OptCriteria, form.LoopCount), std::pair(made.OptCriteria, made.LoopCount));
  EXPECT_EQ(std::ranges::count(state.SiteStatus, 1), 12);
  EXPECT_EQ(std::ranges::count(state.SiteStatus, site_status::Candidate), 0);
  EXPECT_TRUE(state.Menu.IsEnabled(MenuEntry::mnuSHowMap));
  EXPECT_FALSE(state.Menu.IsEnabled(MenuEntry::mnuMask));
  EXPECT_THAT(ReadText(directory_ / "data/farm/ab12rsd1.txt"),
              AllOf(HasSubstr("Total Survey Size =  400   Active Survey Size =  400)"),
                    HasSubstr("Strata # 2 \r\n")));
}

TEST_F(SrsFormTest, DesignThatIsNotSavedLeavesNoTrace)
{
  SurveyState state = Survey(100);
  const SurveyState before = state;
  {
    SrsForm form = OpenSrs(state, dialogs_);
    Run(form, state);
    const TargetSites first = form.Finished->Sites;
    DiscardDesign(form, state, dialogs_);
    EXPECT_EQ(state, before);
    EXPECT_EQ(form.LblDN, "1");
    EXPECT_FALSE(form.Finished);
    Run(form, state);
    EXPECT_EQ(form.Finished->Sites, first);
    CloseSrs(form);
    EXPECT_EQ(state, before);
    form = OpenSrs(state, dialogs_);
    Run(form, state);
  }
  EXPECT_EQ(state, before) << "nor one whose window goes without a word";
  EXPECT_EQ(ListFiles(directory_ / "data/farm"), Lines{});
}

TEST_F(SrsFormTest, FifthDesignAndTooFewSitesEndTheWork)
{
  struct Case {
    int Free;
    int Before;  // designs that stand
    Lines Told;  // behind the note of the file
  };
  for (const Case& c :
       {Case{30, 0, {}},             // 6 go: 24 are enough
        Case{29, 0, {NoMoreSites}},  // 23 are too few
        Case{100, 3, {}}, Case{100, 4, {FifthDesign}}, Case{24, 4, {NoMoreSites, FifthDesign}}}) {
    SurveyState state = Survey(c.Free);
    state.DesignCount = c.Before;
    SrsForm form = OpenSrs(state, dialogs_);
    const std::string number = std::to_string(c.Before + 1);
    EXPECT_EQ(form.LblDN, number);
    ChooseSize(form, state, DesignSize::Limited);
    Run(form, state);
    dialogs_.Said.clear();
    Save(form, state);
    EXPECT_EQ(dialogs_.Said.front(),
              "inform: SRSD sampling design information has been saved to ab12rsd" + number + ".txt");
    EXPECT_EQ(Lines(dialogs_.Said.begin() + 1, dialogs_.Said.end()), c.Told);
    EXPECT_EQ(form.Closed, !c.Told.empty());
    EXPECT_EQ(state.Menu.IsEnabled(MenuEntry::mnuSRS), c.Told.empty());
  }
}

TEST_F(SrsFormTest, NoteTellsSupportSitesThatCouldNotBePlaced)
{
  std::vector<HandSite> sites;
  for (int i = 0; i < 48; ++i) {
    sites.push_back({10.0 * i, 1.0 * i * i, i % 2 == 0 ? 1.0 + 0.03 * i : -1.0 - 0.03 * i});
  }
  for (const bool oneCentral : {false, true}) {
    dialogs_.Said.clear();
    sites[47].Z1 = oneCentral ? 0.0 : -2.41;
    SurveyState state = HandField(sites, 1, directory_.Path());
    SrsForm form = OpenSrs(state, dialogs_);
    Run(form, state);
    ASSERT_EQ(dialogs_.Said.size(), 1U);
    EXPECT_THAT(dialogs_.Said[0],
                StartsWith(oneCentral ? "inform: Note: 1 support site could not be placed"
                                      : "inform: Note: 2 support sites could not be placed"));
    Save(form, state);
    const std::string report = ReadText(directory_ / "data/farm/ab12rsd1.txt");
    EXPECT_THAT(report, HasSubstr("Sample Size:  12 "));  // as chosen
    EXPECT_EQ(report.find("support site") != std::string::npos, oneCentral);
    EXPECT_EQ(std::ranges::count(state.SiteStatus, 1), oneCentral ? 11 : 10);
  }
}

}  // namespace
}  // namespace veln
