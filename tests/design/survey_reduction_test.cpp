#include "design/survey_reduction.h"

#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

std::string MenuOf(const ReductionMenu& menu)
{
  std::string text = menu.mnuSRSReduce ? "reduce" : "-";
  for (std::size_t i = 0; i < menu.Steps.size(); ++i) {
    text += menu.Steps.at(i) ? std::string(" ") + std::array{"50", "67", "75", "80"}.at(i) : "";
  }
  return text + (menu.mnuSRSRecover ? " recover" : "");
}

TEST(SurveyReduction, StepsOpenWithTheSurveySize)
{
  const std::vector<std::pair<int, std::string>> cases = {{4999, "-"},
                                                          {5000, "reduce 50"},
                                                          {7499, "reduce 50"},
                                                          {7500, "reduce 50 67"},
                                                          {9999, "reduce 50 67"},
                                                          {10000, "reduce 50 67 75"},
                                                          {12499, "reduce 50 67 75"},
                                                          {12500, "reduce 50 67 75 80"}};
  for (const auto& [size, menu] : cases) {
    EXPECT_EQ(MenuOf(OfferedReductions(size)), menu) << size;
  }
}

/// The places (from 1) of the free sites are the multiples of `step`.
void ExpectMultiplesFree(const SurveyState& state, std::size_t step)
{
  for (std::size_t i = 1; i <= state.SiteStatus.size(); ++i) {
    ASSERT_EQ(state.SiteStatus[i - 1], i % step == 0 ? site_status::Free : site_status::Outlier) << i;
  }
}

TEST(SurveyReduction, KeepsMultiplesOfTheFactorAndRecoversOnlyWhatItDropped)
{
  SurveyState state = AcceptedSurvey(GridSurvey(125, 100, 1));
  state.SiteStatus[0] = 1;  // places 1 and 3: dropped, were they free
  state.SiteStatus[2] = site_status::Masked;
  state.SiteStatus[4] = site_status::Selected;
  const std::vector<std::int16_t> before = state.SiteStatus;
  const char* const Shares[] = {"50%", "67%", "75%", "80%"};
  ScriptedDialogs dialogs;
  SrsForm form = OpenSrs(state, dialogs);
  for (int rfactor = 2; rfactor <= 5; ++rfactor) {
    dialogs.Said.clear();
    ReduceGridSize(form, state, rfactor, dialogs);
    EXPECT_EQ(MenuOf(form.Reduction), "- 50 67 75 80 recover");
    for (std::size_t i = 0; i < before.size(); ++i) {
      const bool stays = before[i] != 0 || static_cast<int>(i + 1) % rfactor == 0;
      ASSERT_EQ(state.SiteStatus[i], stays ? before[i] : site_status::Outlier) << i;
    }
    EXPECT_EQ(form.LblMS,
              "Total Survey size =  12500  Active (available) Survey size = " +
                  NumberToString(12500 / rfactor - rfactor % 2));  // place 3 is masked, 5 selected by hand
    EXPECT_NE(RefusalOf([&] { ReduceGridSize(form, state, 2, dialogs); }), "not refused");
    RecoverGridSites(form, state, dialogs);
    EXPECT_EQ(state.SiteStatus, before);
    EXPECT_EQ(MenuOf(form.Reduction), "reduce 50 67 75 80");
    EXPECT_EQ(dialogs.Said,
              (Lines{"beep",
                     std::string("inform: The active # of survey sites have been reduced by ") +
                         Shares[rfactor - 2],
                     "beep", "inform: All previously removed survey sites have been recovered."}));
    EXPECT_NE(RefusalOf([&] { RecoverGridSites(form, state, dialogs); }), "not refused");
  }
}

TEST(SurveyReduction, FactorIsHeldAndAStepTheSizeDoesNotOfferIsRefused)
{
  SurveyState state = AcceptedSurvey(GridSurvey(100, 50, 1));
  ScriptedDialogs dialogs;
  SrsForm form = OpenSrs(state, dialogs);
  for (const int factor : {3, 9}) {  // 9 is held at 5
    EXPECT_NE(WholeRefusalOf(state, [&] { ReduceGridSize(form, state, factor, dialogs); }), "not refused");
  }
  ReduceGridSize(form, state, 1, dialogs);  // held at 2
  ExpectMultiplesFree(state, 2);
}

TEST(SurveyReduction, ReopenedWindowReducesAgainByPlace)
{
  SurveyState state = AcceptedSurvey(GridSurvey(100, 75, 1));
  ScriptedDialogs dialogs;
  SrsForm form = OpenSrs(state, dialogs);
  ReduceGridSize(form, state, 2, dialogs);
  CloseSrs(form, state);
  form = OpenSrs(state, dialogs);
  EXPECT_EQ(MenuOf(form.Reduction), "reduce 50 67");  // and no recovery
  ReduceGridSize(form, state, 3, dialogs);
  ExpectMultiplesFree(state, 6);
}

TEST(SurveyReduction, SitesLeftDecideTheSizes)
{
  SurveyState state = AcceptedSurvey(GridSurvey(100, 50, 1));
  std::fill(state.SiteStatus.begin() + 94, state.SiteStatus.end(), site_status::Masked);
  ScriptedDialogs dialogs;
  SrsForm form = OpenSrs(state, dialogs);
  ReduceGridSize(form, state, 2, dialogs);
  EXPECT_EQ(SizesOf(form), "6* (12) (20)");
  EXPECT_EQ(RefusalOf([&] { ChooseSize(form, state, DesignSize::Standard); }),
            "A design of this size needs 48 available survey sites, but there are only 47.");
  RecoverGridSites(form, state, dialogs);
  EXPECT_EQ(SizesOf(form), "6* (12) (20)");  // what is closed stays closed
}

TEST(Parsing, StrataFollowTheWholeSurvey)
{
  for (const auto& [size, strata] : {std::pair{400, 2}, {600, 3}, {1400, 5}, {30000, 9}}) {
    SurveyState state;  // no site is free
    state.SurveySize = size;
    const ParseForm form = LoadParseForm(state);
    EXPECT_EQ(form.Label2(), " " + std::to_string(strata) + " distinct strata");
    for (int stratum = 1; stratum <= 9; ++stratum) {
      EXPECT_EQ(form.OptionEnabled(stratum), stratum <= strata);
    }
  }
}

TEST(Parsing, ChosenStratumHoldsForTheNextDesign)
{
  SurveyState state = AcceptedSurvey(GridSurvey(30, 20, 1));
  ScriptedDialogs dialogs;
  SrsForm srs = OpenSrs(state, dialogs);
  SwitchParsing(srs, true);
  ParseForm form = LoadParseForm(state);
  InvokeParsing(form, srs, dialogs);
  EXPECT_EQ(srs.Parsing, (Stratum{3, 0}));  // Strata #1 without a click
  ChooseStratum(form, 3);
  for (const int none : {0, 4}) {
    EXPECT_EQ(RefusalOf([&] { ChooseStratum(form, none); }), "Error!  Invalid Parsing Values!");
  }
  InvokeParsing(form, srs, dialogs);
  EXPECT_TRUE(srs.Check3);
  EXPECT_EQ(dialogs.Said.back(), "inform: Note: Parsing will be in effect for the next SRS design only.");
  RunObserver silent;
  RunDesign(srs, state, dialogs, silent);
  EXPECT_EQ(srs.Finished->Settings.Parsing, (Stratum{3, 2}));
  DiscardDesign(srs, state, dialogs);
  EXPECT_EQ(srs.Parsing, Stratum{});
  EXPECT_FALSE(srs.Check3);

  SwitchParsing(srs, true);
  InvokeParsing(form, srs, dialogs);
  CancelParsing(srs);
  EXPECT_EQ(srs.Parsing, Stratum{});
  EXPECT_FALSE(srs.Check3);
}

}  // namespace
}  // namespace veln
