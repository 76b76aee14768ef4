#include "forms/sig_val_form.h"

#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

SurveyState SurveyWith(RawSurvey survey, int outliers)
{
  SurveyState state = DecorrelatedSurvey(std::move(survey));
  state.Decorrelation.Counts.OutlierCount = outliers;
  return state;
}

void ExpectTransectOptions(const SigValForm& form, bool enabled)
{
  EXPECT_EQ(form.Check2Enabled, enabled);
  EXPECT_EQ(form.ChkEB1Enabled, enabled);
  EXPECT_EQ(form.LblRCEnabled, enabled);
  EXPECT_EQ(form.Label2Enabled, enabled);
}

TEST(SigValForm, OpensOnDeletionWithOutliersAndOnAcceptanceWithout)
{
  const auto texts = [](const SigValForm& form) {
    return std::string(form.Option2Caption()) + "|" + form.Option2ToolTip() + "|" + form.Command2Caption() +
           "|" + form.Command2ToolTip();
  };
  SigValForm form = LoadSigValForm(SurveyWith(TransectSurvey(5, 12), 1));
  EXPECT_TRUE(form.Option1Enabled && form.Option1 && !form.Option2);
  ExpectTransectOptions(form, false);
  EXPECT_EQ(form.LblRC, "Row Count = n/a");
  EXPECT_EQ(texts(form),
            "mask all outliers and accept current signal data configuration|"
            " indicates that all outlier sites should be masked (but not deleted) |Invoke Validation|"
            " perform the validation actions selected above on the decorrelated signal data ");

  SurveyState grid = SurveyWith(GridSurvey(10, 5), 0);
  grid.SiteStatus[3] = site_status::Masked;  // no outlier
  form = LoadSigValForm(grid);
  EXPECT_TRUE(!form.Option1Enabled && !form.Option1 && form.Option2);
  ExpectTransectOptions(form, false);
  EXPECT_EQ(texts(form),
            "no outliers detected:  current signal data configuration can be accepted|"
            "the current data configuration is acceptable|Accept Configuration|"
            "accept current data configuration and return to main program menu");
  ExpectTransectOptions(LoadSigValForm(SurveyWith(TransectSurvey(5, 12), 0)), true);
}

TEST(SigValForm, DeletionClosesTheTransectOptionsAndAcceptanceBringsTheTickBack)
{
  const SurveyState state = SurveyWith(TransectSurvey(5, 12), 2);
  SigValForm form = LoadSigValForm(state);
  ChooseAcceptance(form, state);
  ExpectTransectOptions(form, true);
  EXPECT_EQ(form.LblRC, "Row Count =  5");
  form.Check2 = true;
  TickEdgeBuffering(form, true);
  ChooseDeletion(form);
  ExpectTransectOptions(form, false);
  EXPECT_FALSE(form.ChkEB1 || form.OptEBEnabled || form.OptEB1 || form.OptEB2);
  EXPECT_TRUE(form.Check2);
  EXPECT_EQ(form.LblRC, "Row Count =  5");
  EXPECT_FALSE(form.Options().TransitionAnalysis);
  ChooseAcceptance(form, state);
  EXPECT_TRUE(form.Options().TransitionAnalysis);
  EXPECT_FALSE(form.Options().Buffer());
}

TEST(SigValForm, EdgeBufferingStartsWithTheRowsAndAsksForWhatIsSelected)
{
  SigValForm form = LoadSigValForm(SurveyWith(TransectSurvey(5, 12), 0));
  EXPECT_FALSE(form.Options().Buffer());
  TickEdgeBuffering(form, true);
  EXPECT_TRUE(form.OptEBEnabled && form.OptEB1 && !form.OptEB2);
  EXPECT_EQ(form.Options().EdgeBuffering, BufferExtent::OuterRowsToo);
  ChooseRowBuffering(form, false);
  EXPECT_TRUE(!form.OptEB1 && form.OptEB2);
  EXPECT_EQ(form.Options().EdgeBuffering, BufferExtent::RowEnds);
  TickEdgeBuffering(form, false);
  EXPECT_FALSE(form.OptEBEnabled || form.OptEB1 || form.OptEB2);
  EXPECT_FALSE(form.Options().Buffer());
}

}  // namespace
}  // namespace veln
