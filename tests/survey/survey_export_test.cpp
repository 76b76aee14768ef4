#include "survey/survey_export.h"

#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

/// Two sites with values that meet the rounding of each column.
SurveyState TwoSites(SurveyKind kind, int signals)
{
  SurveyState state;
  state.SurveySize = 2;
  state.SignalCount = signals;
  state.Kind = kind;
  state.LogTransform = true;
  state.Signals.Rows[0].Label = "log(EMv)";
  state.Signals.Rows[1].Label = "log(EMh)";
  state.SiteId = {1, -7};
  state.RowNumber = {3, 250};
  state.SiteStatus = {0, 7};
  state.CoordX = {345.1, 1234.5};
  state.CoordY = {20, -1234.5678905};
  state.Signal1 = {0.5, 2};
  state.Signal2 = {-0.25, 12.345675};
  state.Decorr1 = {0.000004, -0.000004};
  state.Decorr2 = {1.234567, -3};
  return state;
}

TEST(SurveyExport, HasRowNumbersInATransectAndTwoMoreColumnsForASecondSignal)
{
  const std::string twoSignals = "\"log(EMv)\",\"log(EMh)\",\"1st-PCS\",\"2nd-PCS\"\r\n";
  EXPECT_EQ(ComposeSurveyExport(TwoSites(SurveyKind::Transect, 2)),
            "2,4,\"T\",\"log\"\r\n" + twoSignals +
                " 1    3    0    345.1    20    .5   -.25    0    1.23457 \r\n"
                "-7    250    7    1234.5   -1234.567891    2    12.34568    0   -3 \r\n");
  EXPECT_EQ(ComposeSurveyExport(TwoSites(SurveyKind::Grid, 2)),
            "2,4,\"G\",\"log\"\r\n" + twoSignals +
                " 1    0    345.1    20    .5   -.25    0    1.23457 \r\n"
                "-7    7    1234.5   -1234.567891    2    12.34568    0   -3 \r\n");
  SurveyState untransformed = TwoSites(SurveyKind::Transect, 1);
  untransformed.LogTransform = false;
  EXPECT_EQ(ComposeSurveyExport(untransformed),
            "2,3,\"T\",\"none\"\r\n\"log(EMv)\",\"1st-PCS\"\r\n"
            " 1    3    0    345.1    20    .5    0 \r\n"
            "-7    250    7    1234.5   -1234.567891    2    0 \r\n");
  EXPECT_EQ(ComposeSurveyExport(TwoSites(SurveyKind::Grid, 1)),
            "2,3,\"G\",\"log\"\r\n\"log(EMv)\",\"1st-PCS\"\r\n"
            " 1    0    345.1    20    .5    0 \r\n"
            "-7    7    1234.5   -1234.567891    2    0 \r\n");
}

TEST(SurveyExport, ProgressStepsAreWiderForAGridWithOneSignal)
{
  const auto told = [](const RawSurvey& survey) {
    SurveyState state = ImportedSurvey(survey);
    state.Decorr1 = state.Decorr2 = state.Signal1;
    std::vector<int> sites;
    ComposeSurveyExport(state, [&sites](int site) { sites.push_back(site); });
    return sites;
  };
  EXPECT_THAT(told(GridSurvey(25, 10, 1)), ElementsAre(100, 200));
  EXPECT_THAT(told(GridSurvey(10, 5, 2)), ElementsAre(20, 40));
  EXPECT_THAT(told(TransectSurvey(5, 12, 1)), ElementsAre(20, 40, 60));
}

TEST(SurveyExport, TimerMakesTheFileOnceOnItsSecondTick)
{
  ExportTimer timer;
  std::vector<bool> made;
  for (int tick = 0; tick < 6; ++tick) {
    made.push_back(timer.Tick());
  }
  EXPECT_THAT(made, ElementsAre(false, true, false, false, false, false));
}

}  // namespace
}  // namespace veln
