#include "signal/info_file.h"

#include "support/testing.h"

namespace veln {
namespace {

const std::string Blank = "   \r\n";

std::string Blanks(std::size_t count)
{
  return std::string(count, ' ');
}

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

std::string InfoFile(const SurveyState& state)
{
  return ComposeInfoFile(state, [] { return "2026-11-22 14:05:09"; });
}

/// Lines 1 to 20, but for those that tell type, size, signals and transformation.
std::string Head(const std::string& described)
{
  return "Input File:   in/raw.txt\r\n" + Blank + "Output File:  /veln/data/farm/ab12info.txt\r\n" +
         "Project:      farm\r\n" + "O-File Name:  ab12info.txt\r\n" + Blank +
         "Date & Time:  2026-11-22 14:05:09\r\n" + "Field Desc:   North field, dry\r\n" + Blank +
         "FieldID Code:    ab12\r\n" + described + Blank + Blank + Blank + "Signal Statistics\r\n" + Blank;
}

/// What stands behind the signal table.
std::string Tail(const std::string& algorithms)
{
  return Blank + Blank + "Decorrelation Statistics\r\n" + Blank +    //
         Blanks(29) + "Level" + Blanks(5) + "# Sites > Level\r\n" +  //
         "   Masking STD" + Blanks(15) + "3.50" + Blanks(12) + "13\r\n" + "   Outlier STD" + Blanks(15) +
         "4.50" + Blanks(12) + "3\r\n" + Blank + "   Total # of deleted sites:" + Blanks(11) + "2\r\n" +
         "   # of Validation iterations:" + Blanks(9) + "1\r\n" + Blank + Blank + algorithms;
}

TEST(InfoFile, OfTwoSignalsHasTwoColumnsThatEndAt24And44)
{
  EXPECT_EQ(InfoFile(TwoSignalTransect()),
            Head("File Type:       Transect  (rowcount = 2)\r\n"
                 "Survey Size:     1498 \r\n"
                 "# of Signals:    2 \r\n"
                 "Signal Units:    mS/m\r\n"
                 "Sig Trnsfrm:     none\r\n") +
                Blanks(19) + "EMv" + Blanks(17) + "EMh\r\n" + Blank +  //
                "   N                1498                1498\r\n"
                "   Mean           61.234              -5.000\r\n"
                "   Std            20.500               9.125\r\n"
                "   Min             8.000             -40.250\r\n"
                "   Max           123.456               7.000\r\n" +
                Blank + "   Signal Corr =   0.8312\r\n" +
                Tail("Edge Buffering:          none\r\n"
                     "Transition Analysis:     invoked\r\n"));
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
  EXPECT_EQ(InfoFile(state),
            Head("File Type:       Grid\r\n"
                 "Survey Size:     1498 \r\n"
                 "# of Signals:    1 \r\n"
                 "Signal Units:    dS/m\r\n"
                 "Sig Trnsfrm:     natural log\r\n") +
                Blanks(19) + "log(EMv)\r\n" + Blank +  //
                "   N                1498\r\n"
                "   Mean       123456.000\r\n"
                "   Std        \r\n"
                "             1234567.000\r\n"
                "   Min             8.000\r\n"
                "   Max        \r\n"
                "             -123456.000\r\n" +
                Tail("Edge Buffering:          n/a\r\n"
                     "Transition Analysis:     n/a\r\n"));
}

TEST(InfoFile, LongValuesKeepTheirRightEndAndWrapOnceTheyMeetWhatStandsBefore)
{
  SurveyState state = TwoSignalTransect();
  const std::string seventeen = "1234567890000.000";
  const std::string twenty = "1234567890000000.000";
  // The last value's column would lie in front of the line's first.
  state.Signals.Rows[0].Statistics = {{1234567890E+3, 11234567890E+3, 1498},
                                      {121234567890E+3, 123451234567890E+6}};
  state.Signals.Rows[1].Statistics = {{1234567890E+6, 11234567890E+6, 1498}, {-40.25, 7}};
  const std::string text = InfoFile(state);
  EXPECT_THAT(text, HasSubstr("\r\n   Mean" + seventeen + twenty + "\r\n   Std"));
  EXPECT_THAT(text, HasSubstr("\r\n   Std1" + seventeen + "\r\n" + Blanks(23) + "1" + twenty + "\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\n   Min\r\n" + Blanks(5) + "12" + seventeen + Blanks(13) + "-40.250\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\n   Max\r\n12345" + twenty + Blanks(14) + "7.000\r\n"));
}

TEST(InfoFile, LongLabelsCountCharactersAndWrapBehindTwenty)
{
  SurveyState state = TwoSignalTransect();
  state.Signals.Rows[0].Label = "Leitf\xC3\xA4higkeit tief 1";  // 20 characters, 21 bytes
  EXPECT_THAT(InfoFile(state), HasSubstr("\r\n" + Blanks(19) +
                                         "Leitf\xC3\xA4higkeit tief 1"
                                         "EMh\r\n"));
  state.Signals.Rows[0].Label += "2";
  EXPECT_THAT(InfoFile(state), HasSubstr(" tief 12\r\n" + Blanks(39) + "EMh\r\n"));
}

}  // namespace
}  // namespace veln
