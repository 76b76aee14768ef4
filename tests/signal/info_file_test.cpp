#include "signal/info_file.h"

#include "support/testing.h"

namespace veln {
namespace {

SurveyState TwoSignalTransect()
{
  SurveyState state;
  state.ProgramDir = "/veln";
  state.ProjectName = "farm";
  state.FieldId = "ab12";
  state.FieldDescription = "North field, dry";
  state.ImportFileName = "in/raw.txt";
  state.Kind = SurveyKind::Transect;
  state.SurveySize = 1498;
  state.SignalCount = 2;
  state.RowNumber = {1, 1, 4};
  state.Signals.Rows = {SignalFacts{"EMv", {{61.234, 20.5, 1498}, {8, 123.456}}},
                        SignalFacts{"EMh", {{-5, 9.125, 1498}, {-40.25, 7}}}};
  state.Signals.Correlation = 0.8312;
  state.DecorrDone = true;
  state.Decorrelation = {{350, 450}, {10, 3}};
  state.DeletedSiteCount = 2;
  state.ValidationCount = 1;
  state.Algorithms = {AlgorithmState::NotAsked, AlgorithmState::Invoked};
  return state;
}

/// Compares with a golden file, whose lines end as those of the information file do.
void ExpectInfoFile(const SurveyState& state, const char* golden)
{
  EXPECT_EQ(ComposeInfoFile(state, [] { return "2026-11-22 14:05:09"; }),
            ReadText(std::filesystem::path(VELN_TEST_DATA) / golden));
}

TEST(InfoFile, OfTwoSignalsHasTwoColumnsThatEndAt24And44)
{
  ExpectInfoFile(TwoSignalTransect(), "info_two_signals.txt");
}

TEST(InfoFile, OfOneSignalWrapsValuesOfMoreThanTenCharacters)
{
  SurveyState state = TwoSignalTransect();
  state.Kind = SurveyKind::Grid;
  state.RowNumber.clear();
  state.SignalCount = 1;
  state.SignalUnits = ConductivityUnits::DeciSiemens;
  state.LogTransform = true;
  state.Signals.Rows[0] = {"log(EMv)", {{123456, 1234567, 1498}, {8, -123456}}};
  state.Algorithms = {AlgorithmState::NotApplicable, AlgorithmState::NotApplicable};
  ExpectInfoFile(state, "info_one_signal.txt");
}

TEST(InfoFile, LongValuesKeepTheirRightEndAndWrapOnceTheyMeetWhatStandsBefore)
{
  SurveyState state = TwoSignalTransect();
  // The last value's column would lie in front of the line's first. The label has 20 characters, 21 bytes.
  state.Signals.Rows[0] = {"Leitf\xC3\xA4higkeit tief 1",
                           {{1234567890E+3, 11234567890E+3, 1498}, {121234567890E+3, 123451234567890E+6}}};
  state.Signals.Rows[1].Statistics = {{1234567890E+6, 11234567890E+6, 1498}, {-40.25, 7}};
  ExpectInfoFile(state, "info_long_values.txt");
  state.Signals.Rows[0].Label += "2";
  EXPECT_THAT(ComposeInfoFile(state, [] { return ""; }),
              HasSubstr(" tief 12\r\n" + std::string(39, ' ') + "EMh\r\n"));
}

}  // namespace
}  // namespace veln
