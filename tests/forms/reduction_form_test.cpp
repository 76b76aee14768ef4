#include "forms/reduction_form.h"

#include "forms/design_forms.h"
#include "forms/reduction_form.h"

namespace veln {
namespace {

std::string MenuOf(const ReductionMenu& menu)
{
  std::string text = menu.mnuSRSReduce ? "reduce" : "-";
  for (std::size_t i = 0; i < menu.Steps.size(); ++i) {
    text += menu.Steps.at(i) ? std::string(" ") + std::array{"50", "67", "75", "80"}.at(i) : "";
  }
  return text + (menu.mnuSRSRecover ? " recover" : "");
}

TEST(ReductionMenu, StepsOpenWithTheSurveySize)
{
  for (const auto& [size, menu] : {std::pair{4999, "-"},
                                   {5000, "reduce 50"},
                                   {7499, "reduce 50"},
                                   {7500, "reduce 50 67"},
                                   {9999, "reduce 50 67"},
                                   {10000, "reduce 50 67 75"},
                                   {12499, "reduce 50 67 75"},
                                   {12500, "reduce 50 67 75 80"}}) {
    EXPECT_EQ(MenuOf(OfferedReductions(size)), menu) << size;
  }
}

TEST(ReductionMenu, EachStepTellsItsShareAndIsTakenBack)
{
  struct Case {
    int Factor;
    int Left;  // of 240 sites
    const char* Share;
  };
  for (const Case& c : {Case{1, 120, "50%"},
                        {2, 120, "50%"},
                        {3, 80, "67%"},
                        {4, 60, "75%"},
                        {5, 48, "80%"},
                        {9, 48, "80%"}}) {
    SurveyState state = AcceptedSurvey(GridSurvey(20, 12, 1));
    ScriptedDialogs dialogs;
    SrsForm form = OpenSrs(state, dialogs);
    form.Reduction = {true, {true, true, true, true}, false};
    ReduceGridSize(form, state, c.Factor, dialogs);
    EXPECT_EQ(MenuOf(form.Reduction), "- 50 67 75 80 recover");
    EXPECT_EQ(DetermineAvSites(state), c.Left);
    EXPECT_THAT(form.LblMS, EndsWith(" Survey size =  " + std::to_string(c.Left)));
    EXPECT_NE(WholeRefusalOf(state, [&] { ReduceGridSize(form, state, 2, dialogs); }), "not refused");
    RecoverGridSites(form, state, dialogs);
    EXPECT_EQ(DetermineAvSites(state), 240);
    EXPECT_EQ(MenuOf(form.Reduction), "reduce 50 67 75 80");
    EXPECT_THAT(
        dialogs.Said,
        ElementsAre("beep",
                    std::string("inform: The active # of survey sites have been reduced by ") + c.Share,
                    "beep", "inform: All previously removed survey sites have been recovered."));
    EXPECT_EQ(RefusalOf([&] { RecoverGridSites(form, state, dialogs); }),
              "There is no survey reduction to take back.");
  }
}

TEST(ReductionMenu, SitesLeftDecideTheSizesAndAReopenedWindowOffersReductionAnew)
{
  SurveyState state = AcceptedSurvey(GridSurvey(100, 50, 1));
  std::fill(state.SiteStatus.begin() + 94, state.SiteStatus.end(), site_status::Masked);
  ScriptedDialogs dialogs;
  SrsForm form = OpenSrs(state, dialogs);
  EXPECT_EQ(WholeRefusalOf(state, [&] { ReduceGridSize(form, state, 3, dialogs); }),
            "A reduction by 67% needs a survey of at least 7500 sites that is not reduced already.");
  ReduceGridSize(form, state, 2, dialogs);
  EXPECT_EQ(SizesOf(form), "6* (12) (20)");
  EXPECT_EQ(RefusalOf([&] { ChooseSize(form, state, DesignSize::Standard); }),
            "A design of this size needs 48 available survey sites, but there are only 47.");
  RecoverGridSites(form, state, dialogs);
  EXPECT_EQ(SizesOf(form), "6* (12) (20)");  // what is closed stays closed
  ReduceGridSize(form, state, 2, dialogs);
  CloseSrs(form);
  EXPECT_EQ(MenuOf(OpenSrs(state, dialogs).Reduction), "reduce 50");  // and no recovery
}

TEST(Parsing, ChosenStratumHoldsForTheNextDesign)
{
  SurveyState state = AcceptedSurvey(GridSurvey(30, 20, 1));
  ScriptedDialogs dialogs;
  SrsForm srs = OpenSrs(state, dialogs);
  SwitchParsing(srs, true);
  ParseForm form = LoadParseForm(state);
  EXPECT_EQ(form.Label2(), " 3 distinct strata");
  InvokeParsing(form, srs, dialogs);
  EXPECT_EQ(srs.Parsing, (Stratum{3, 0}));  // Strata #1 without a click
  for (const int stratum : {0, 4, 1, 3}) {
    const bool open = stratum == 1 || stratum == 3;
    EXPECT_EQ(form.OptionEnabled(stratum), open);
    EXPECT_EQ(RefusalOf([&] { ChooseStratum(form, stratum); }), open ? "not refused" : InvalidParsing);
  }
  InvokeParsing(form, srs, dialogs);
  EXPECT_EQ(dialogs.Said.back(), "inform: Note: Parsing will be in effect for the next SRS design only.");
  RunObserver silent;
  RunDesign(srs, state, dialogs, silent);
  EXPECT_EQ(srs.Finished->Settings.Parsing, (Stratum{3, 2}));
  DiscardDesign(srs, state, dialogs);
  EXPECT_EQ(srs.Parsing, Stratum{});
  EXPECT_FALSE(srs.Check3);

  SwitchParsing(srs, true);
  InvokeParsing(form, srs, dialogs);
  EXPECT_TRUE(srs.Check3);
  CancelParsing(srs);
  EXPECT_EQ(srs.Parsing, Stratum{});
  EXPECT_FALSE(srs.Check3);
}

}  // namespace
}  // namespace veln
