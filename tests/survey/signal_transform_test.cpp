#include "survey/signal_transform.h"

#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

constexpr const char* NonPositive =
    "Error!  Non-positive signal data detected!\nThis signal data can not be log transformed.";

/// What a refused transformation must leave: the record as it was, but with the labels typed.
std::string RefusalWithLabels(SurveyState& state, const BasicStatsForm& form)
{
  SurveyState expected = state;
  expected.SignalLabel = form.Labels;
  std::string message = RefusalOf([&] { ComputeSignals(state, form); });
  EXPECT_TRUE(state == expected) << message;
  return message;
}

TEST(SignalTransform, FormOffersWhatTheSignalsAllow)
{
  const auto offered = [](const SurveyState& state) {
    const BasicStatsForm form = LoadBasicStatsForm(state);
    EXPECT_FALSE(form.Check1 || form.Check2 || form.Check3 || form.Check4);
    return std::vector{form.Check1Enabled, form.Check2Enabled, form.Check3Enabled, form.Check4Enabled,
                       form.Text2Visible};
  };
  SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  EXPECT_THAT(offered(state), ElementsAre(true, false, false, true, true));
  BasicStatsForm form = LoadBasicStatsForm(state);
  form.Check1 = form.Check4 = true;
  ComputeSignals(state, form);
  EXPECT_THAT(offered(state), ElementsAre(false, true, true, false, true));
  EXPECT_FALSE(LoadBasicStatsForm(ImportedSurvey(GridSurvey(10, 5, 1))).Text2Visible);
}

TEST(SignalTransform, LogAndScaleInOneStepAddTheLogarithmOfTheFactor)
{
  SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  const SurveyState before = state;
  BasicStatsForm form = LoadBasicStatsForm(state);
  form.Labels = {"one", "two"};
  form.Check1 = form.Check4 = true;
  ComputeSignals(state, form);
  EXPECT_EQ(state.Signal1[7], std::log(before.Signal1[7]) + std::log(0.01));
  EXPECT_EQ(state.Signal2[7], std::log(before.Signal2[7]) + std::log(0.01));
  EXPECT_TRUE(state.LogTransform);
  EXPECT_EQ(state.SignalUnits, ConductivityUnits::DeciSiemens);
  EXPECT_EQ(state.Signals.Rows[1].Label, "two");

  form = LoadBasicStatsForm(state);
  form.Check2 = true;
  ComputeSignals(state, form);
  EXPECT_NEAR(state.Signal1[7], before.Signal1[7] / 100, 1E-14);
  EXPECT_FALSE(state.LogTransform);
  form = LoadBasicStatsForm(state);
  form.Check3 = true;
  ComputeSignals(state, form);
  EXPECT_NEAR(state.Signal2[7], before.Signal2[7], 1E-12);
  EXPECT_EQ(state.SignalUnits, ConductivityUnits::MilliSiemens);
  EXPECT_NEAR(state.Signals.Rows[0].Statistics.Mean, before.Signals.Rows[0].Statistics.Mean, 1E-12);
}

TEST(SignalTransform, RefusalLetsTheLabelsStandAndNothingElse)
{
  for (const auto signal : {&SurveyState::Signal1, &SurveyState::Signal2}) {
    SurveyState state = ImportedSurvey(GridSurvey(10, 5));
    BasicStatsForm form = LoadBasicStatsForm(state);
    form.Labels = {"one", "two"};
    form.Check1 = form.Check4 = true;
    (state.*signal)[49] = 0;
    EXPECT_EQ(RefusalWithLabels(state, form), NonPositive);
  }
}

TEST(SignalTransform, ValuesThatLeaveTheDoublesAreRefused)
{
  for (const double value : {1E+307, 1E+153}) {  // the value itself, or its square
    SurveyState state = ImportedSurvey(GridSurvey(10, 5));
    BasicStatsForm form = LoadBasicStatsForm(state);
    form.Check3 = true;
    state.Signal1[3] = value;
    EXPECT_THAT(RefusalWithLabels(state, form), StartsWith("Error!  The changed signal data"));
  }
  // Each column can be described, the correlation of the two can't.
  RawSurvey large = GridSurvey(10, 5);
  large.Signal1[3] = large.Signal2[4] = 3E+75;
  SurveyState state = ImportedSurvey(large);
  ASSERT_TRUE(state.Signals.Correlation);
  BasicStatsForm form = LoadBasicStatsForm(state);
  form.Check3 = true;
  EXPECT_THAT(RefusalWithLabels(state, form), StartsWith("Error!  The changed signal data"));
}

TEST(SignalTransform, IsClosedOnceTheSignalsAreDecorrelated)
{
  SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  state.Menu.Apply(WorkflowEvent::SignalsDecorrelated);
  BasicStatsForm form = LoadBasicStatsForm(state);
  form.Labels = {"one", "two"};
  EXPECT_NE(WholeRefusalOf(state, [&] { ComputeSignals(state, form); }), "not refused");
}

}  // namespace
}  // namespace veln
