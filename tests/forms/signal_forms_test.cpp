#include "forms/outlier_list.h"
#include "forms/sig_decorr_form.h"
#include "forms/sig_val_form.h"
#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

/// 51 sites of one signal with mean 0 and deviation exactly 1: 5, -5 and 49 zeros.
SurveyState FiveDeviations()
{
  RawSurvey survey = GridSurvey(51, 1, 1);
  std::ranges::fill(survey.Signal1, 0);
  survey.Signal1[10] = 5;
  survey.Signal1[50] = -5;
  survey.CoordX[10] = 1.000005;
  survey.CoordY[10] = -2;
  return ImportedSurvey(survey);
}

TEST(SigDecorrForm, HoldsEachLevelAtTheOther)
{
  SigDecorrForm form = LoadSigDecorrForm(FiveDeviations());
  const auto shown = [&form] {
    return std::to_string(form.Levels.Masking) + " " + std::to_string(form.Levels.Outlier) + " " +
           form.Label11;
  };
  EXPECT_EQ(shown(), "350 450 ");
  MoveMaskingLevel(form, 450);
  EXPECT_EQ(shown(), "450 450 ");
  MoveMaskingLevel(form, 451);
  EXPECT_EQ(shown(), "450 450 Attention: Masking STD level can not be set higher than Outlier STD level");
  MoveOutlierLevel(form, 450);
  EXPECT_EQ(shown(), "450 450 ");
  MoveOutlierLevel(form, 300);
  EXPECT_EQ(shown(), "450 450 Attention: Outlier STD level can not be set lower than Masking STD level");
  MoveMaskingLevel(form, 310);
  MoveOutlierLevel(form, 600);
  EXPECT_EQ(shown(), "310 600 ");
}

TEST(SigDecorrForm, ShowsItsRunAndOpensWithItsLevels)
{
  SurveyState state = FiveDeviations();
  state.DeletedSiteCount = 3;
  SigDecorrForm form = LoadSigDecorrForm(state);
  EXPECT_EQ(form.Label3 + form.Label4 + form.Label5, "n/an/an/a");
  EXPECT_FALSE(form.ResultsVisible || form.Command3Visible);
  MoveOutlierLevel(form, 501);
  PerformDecorrelation(form, state);
  EXPECT_EQ(form.Label3 + " " + form.Label4 + " " + form.Label5, "2 0 3");
  EXPECT_TRUE(form.ResultsVisible && !form.Command3Visible);
  MoveOutlierLevel(form, 500);
  PerformDecorrelation(form, state);
  EXPECT_EQ(form.Label3 + " " + form.Label4, "2 2");
  EXPECT_TRUE(form.Command3Visible);
  EXPECT_TRUE(LoadSigDecorrForm(state).Levels == (DecorrelationLevels{350, 500}));
}

TEST(OutlierList, TellsOutliersAloneInSurveyOrder)
{
  SurveyState state = FiveDeviations();
  DecorrelateSignals(state, {450, 500});
  state.SiteStatus[20] = site_status::Masked;
  TextTable table = ListOutliers(state);
  EXPECT_THAT(table.Headings, ElementsAre("Site ID", "X Coord", "Y Coord", "Sig 1", "Abs(STD)"));
  ASSERT_THAT(table.Rows, ElementsAre(ElementsAre("11", "1.00001", "-2.0", "5.00", "5.000"),
                                      ElementsAre("51", "500.0", "0.0", "-5.00", "5.000")));
  state.SignalCount = 2;
  state.Signal2.assign(51, 0.1235);
  state.Decorr2.assign(51, 12);
  table = ListOutliers(state);
  EXPECT_EQ(table.Headings[4], "Sig 2");
  EXPECT_THAT(table.Rows[1], ElementsAre("51", "500.0", "0.0", "-5.00", "0.124", "13.000"));
}

SigValForm FormWith(const RawSurvey& survey, int outliers)
{
  SurveyState state = DecorrelatedSurvey(survey);
  state.Decorrelation.Counts.OutlierCount = outliers;
  return LoadSigValForm(state);
}

/// The options of a transect, "+" if open, and what is ticked of them.
std::string OptionsOf(const SigValForm& form)
{
  EXPECT_EQ(form.Check2Enabled, form.ChkEB1Enabled);
  EXPECT_EQ(form.Check2Enabled, form.LblRCEnabled);
  EXPECT_EQ(form.Check2Enabled, form.Label2Enabled);
  EXPECT_EQ(form.ChkEB1, form.OptEBEnabled);
  EXPECT_NE(form.Option1, form.Option2);
  return std::string(form.Option1 ? "delete" : "accept") + (form.Check2Enabled ? " +" : "") +
         (form.Check2 ? " transition" : "") + (form.OptEB1 ? " rows" : "") + (form.OptEB2 ? " ends" : "") +
         "; " + form.LblRC;
}

TEST(SigValForm, OpensOnDeletionWithOutliersAndOnAcceptanceWithout)
{
  const auto texts = [](const SigValForm& form) {
    return std::string(form.Option2Caption()) + "|" + form.Option2ToolTip() + "|" + form.Command2Caption() +
           "|" + form.Command2ToolTip();
  };
  SigValForm form = FormWith(TransectSurvey(5, 12), 1);
  EXPECT_TRUE(form.Option1Enabled);
  EXPECT_EQ(OptionsOf(form), "delete; Row Count = n/a");
  EXPECT_EQ(texts(form),
            "mask all outliers and accept current signal data configuration|"
            " indicates that all outlier sites should be masked (but not deleted) |Invoke Validation|"
            " perform the validation actions selected above on the decorrelated signal data ");
  form = FormWith(GridSurvey(10, 5), 0);
  EXPECT_FALSE(form.Option1Enabled);
  EXPECT_EQ(OptionsOf(form), "accept; Row Count = n/a");
  EXPECT_EQ(texts(form),
            "no outliers detected:  current signal data configuration can be accepted|"
            "the current data configuration is acceptable|Accept Configuration|"
            "accept current data configuration and return to main program menu");
  EXPECT_EQ(OptionsOf(FormWith(TransectSurvey(5, 12), 0)), "accept +; Row Count =  5");
}

TEST(SigValForm, AsksForWhatIsOpenAndTicked)
{
  const SurveyState state = DecorrelatedSurvey(TransectSurvey(5, 12));
  SigValForm form = FormWith(TransectSurvey(5, 12), 2);
  ChooseAcceptance(form, state);
  EXPECT_EQ(form.Options().EdgeBuffering, BufferExtent::None);
  form.Check2 = true;
  TickEdgeBuffering(form, true);
  EXPECT_EQ(OptionsOf(form), "accept + transition rows; Row Count =  5");
  EXPECT_EQ(form.Options().EdgeBuffering, BufferExtent::OuterRowsToo);
  ChooseRowBuffering(form, false);
  EXPECT_EQ(OptionsOf(form), "accept + transition ends; Row Count =  5");
  EXPECT_EQ(form.Options().EdgeBuffering, BufferExtent::RowEnds);
  EXPECT_TRUE(form.Options().TransitionAnalysis);
  ChooseDeletion(form);
  EXPECT_EQ(OptionsOf(form), "delete transition; Row Count =  5") << "the tick stays without effect";
  EXPECT_FALSE(form.Options().TransitionAnalysis);
  ChooseAcceptance(form, state);
  EXPECT_EQ(OptionsOf(form), "accept + transition; Row Count =  5");
  EXPECT_TRUE(form.Options().TransitionAnalysis);
  EXPECT_EQ(form.Options().EdgeBuffering, BufferExtent::None);
}

}  // namespace
}  // namespace veln
