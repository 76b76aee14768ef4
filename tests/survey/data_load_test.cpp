#include "survey/data_load.h"

#include "support/testing.h"

namespace veln {
namespace {

constexpr const char* TooMany =
    "Error!  Your file contains more than 30,000 records.\nData import process has been aborted!";
constexpr const char* TooFew =
    "Error!  Your file contains less than 50 records.\nData import process has been aborted!";
constexpr const char* NonNumeric =
    "Error!  Non-numeric data was detected in input file!\nData import process has been aborted!\n \n"
    "Please edit this file before attempting to import it again.";
constexpr const char* NonPositive =
    "Error!  Non-positive signal data was detected in input file!\n"
    "This signal data can not be log transformed.\nData import process has been aborted!";
constexpr const char* Fewer =
    "Error!  There are fewer data columns present in input file\n"
    "than you indicated!  Data import process has been aborted!";
constexpr const char* More =
    "Error!  There are more data columns present in input file\n"
    "than you indicated!  Data import process has been aborted!";
constexpr const char* BadRows =
    "Error!  The row numbers in your file are invalid.\nData import process has been aborted!";

constexpr RecordLayout Plain{};  // x, y, s1
constexpr RecordLayout WithId{.SiteIdColumn = true};
constexpr RecordLayout WithS2{.SecondSignal = true};
constexpr RecordLayout WithRow{.Transect = true};

/// `count` lines alike.
std::string Lines(int count, const std::string& line)
{
  return Repeated(line + "\n", count);
}

/// 50 lines alike but for one, counted from 1.
std::string FiftyBut(int number, const std::string& odd, const std::string& line)
{
  return Lines(number - 1, line) + odd + "\n" + Lines(50 - number, line);
}

std::string Fault(const std::string& content, const RecordLayout& layout, bool log = false)
{
  return RefusalOf([&] { DataLoad(content, layout, log, {}); });
}

TEST(DataLoad, TakesFiftyToThirtyThousandLines)
{
  EXPECT_EQ(Fault(Lines(49, "1 2 3"), Plain), TooFew);
  EXPECT_EQ(DataLoad(Lines(50, "1 2 3"), Plain, false, {}).SiteId.size(), 50U);
  EXPECT_EQ(DataLoad(Lines(30'000, "1 2 3"), Plain, false, {}).SiteId.back(), 30'000);
  EXPECT_EQ(Fault(Lines(30'001, "not a number"), Plain), TooMany);
  EXPECT_EQ(Fault("", Plain), TooFew);
}

TEST(DataLoad, LastLineNeedsNoEndButABlankOneCounts)
{
  EXPECT_EQ(DataLoad(Lines(49, "1 2 3") + "1 2 3", Plain, false, {}).SiteId.size(), 50U);
  EXPECT_EQ(Fault(Lines(50, "1 2 3") + "\n", Plain), Fewer);
  EXPECT_EQ(Fault(Lines(50, "1 2 3") + " ", Plain), Fewer);
}

TEST(DataLoad, HeaderIsNonNumericWithOrWithoutAByteOrderMark)
{
  EXPECT_EQ(Fault("x,y,s1\n" + Lines(50, "1 2 3"), Plain), NonNumeric);
  EXPECT_EQ(DataLoad("\xEF\xBB\xBF" + Lines(50, "1 2 3"), Plain, false, {}).CoordX.front(), 1);
}

TEST(DataLoad, EveryItemMustBeANumber)
{
  for (const char* odd :
       {"1,,3", "1 x 3", "1 2 nan", "1 2 inf", "0x1 2 3", "1E999 2 3", "\" 1\" 2 3", "1 2 3;"}) {
    EXPECT_EQ(Fault(FiftyBut(20, odd, "1 2 3"), Plain), NonNumeric) << odd;
  }
  EXPECT_EQ(DataLoad(FiftyBut(1, "\"+1\", .5e1 -1E-999", "1 2 3"), Plain, false, {}).CoordY.front(), 5);
}

TEST(DataLoad, BoxesWronglySetTellFewerColumnsAndMissingOnesMore)
{
  EXPECT_EQ(Fault(Lines(50, "1 2 3"), WithId), Fewer);
  EXPECT_EQ(Fault(Lines(50, "1 2 3"), WithS2), Fewer);
  EXPECT_EQ(Fault(Lines(50, "1 2 3"), WithRow), Fewer);
  EXPECT_EQ(Fault(Lines(50, "1 2 3 4"), Plain), More);
  EXPECT_EQ(Fault(Lines(50, "1 2 3 4 5"), WithRow), More);
}

TEST(DataLoad, RecordsRunAcrossLineEnds)
{
  const RawSurvey survey = DataLoad(Lines(25, "1 2 3 4\n5 6"), Plain, false, {});
  EXPECT_THAT((std::vector{survey.CoordX[1], survey.CoordY[1], survey.Signal1[1]}), ElementsAre(4, 5, 6));
}

TEST(DataLoad, SiteIdsAndRowsAreRoundedToEvenAndMustFitSixteenBits)
{
  const RawSurvey survey = DataLoad(
      "2.5 1 2 3\n3.5 1 2 3\n32767.4 1 2 3\n-32768.5 1 2 3\n" + Lines(46, "7 1 2 3"), WithId, false, {});
  EXPECT_THAT((std::vector(survey.SiteId.begin(), survey.SiteId.begin() + 5)),
              ElementsAre(2, 4, 32767, -32768, 7));
  // The reader takes what it can't hold for a shifted column, and tells its direction by the record count.
  for (const char* odd : {"40000 1 2 3", "32767.5 1 2 3", "-32769 1 2 3"}) {
    EXPECT_EQ(Fault(FiftyBut(49, odd, "7 1 2 3"), WithId), Fewer) << odd;
    EXPECT_EQ(Fault(FiftyBut(50, odd, "7 1 2 3"), WithId), More) << odd;
  }
  EXPECT_EQ(Fault(FiftyBut(20, "1 2 3 40000", "1 2 3 1"), WithRow), Fewer);
}

TEST(DataLoad, TestsOfARecordComeInTheirOrder)
{
  const std::string fifty = Lines(50, "1 2 3");
  EXPECT_EQ(Fault(FiftyBut(50, "1 2 3 4 5 x", "1 2 3"), Plain), NonNumeric);  // a word in a record too many
  EXPECT_EQ(Fault(FiftyBut(50, "1 2 3 4 5 -6", "1 2 3"), Plain, true),
            More);                                                  // no room comes before the logarithm
  EXPECT_EQ(Fault(FiftyBut(50, "1 2 3 x", "1 2 3"), Plain), More);  // an incomplete record is not tested
  EXPECT_EQ(Fault(FiftyBut(20, "40000 1 2 x", "7 1 2 3"), WithId), NonNumeric);
  EXPECT_EQ(Fault(FiftyBut(20, "40000 1 2 0", "7 1 2 3"), WithId, true), Fewer);
  EXPECT_EQ(Fault(FiftyBut(20, "1 2 0 40000", "1 2 3 1"), WithRow, true), Fewer);
  EXPECT_EQ(Fault(FiftyBut(20, "1 2 0 0", "1 2 3 1"), WithRow, true), NonPositive);
}

TEST(DataLoad, LogarithmNeedsPositiveSignals)
{
  const std::string pairs = FiftyBut(20, "-1 -2 1 2", "0 0 3 4");
  const RawSurvey survey = DataLoad(pairs, WithS2, true, {});
  EXPECT_EQ(survey.Signal1[19], 0);
  EXPECT_EQ(survey.Signal2[19], std::log(2.0));
  EXPECT_EQ(Fault(FiftyBut(50, "1 2 0 4", "1 2 3 4"), WithS2, true), NonPositive);
  EXPECT_EQ(Fault(FiftyBut(50, "1 2 3 0", "1 2 3 4"), WithS2, true), NonPositive);
  EXPECT_EQ(Fault(FiftyBut(50, "1 2 -3", "1 2 3"), Plain, true), NonPositive);
  EXPECT_EQ(DataLoad(FiftyBut(50, "1 2 -3 0", "1 2 3 4"), WithS2, false, {}).Signal1.back(), -3);
  // An s2 that was not told of shifts the columns: a zero meets the test before the records run over.
  EXPECT_EQ(Fault(Lines(50, "1 2 3 0"), Plain, true), NonPositive);
}

TEST(DataLoad, RowsLieInOneToTwoHundredAndFiftyAndNeverFall)
{
  const auto rows = [](const char* first, const char* second, const char* rest) {
    const std::string record = "1 2 3 ";
    return record + first + "\n" + record + second + "\n" + Lines(48, record + rest);
  };
  EXPECT_EQ(Fault(rows("1", "2", "1"), WithRow), BadRows);
  EXPECT_EQ(Fault(rows("0", "1", "1"), WithRow), BadRows);
  EXPECT_EQ(Fault(rows("1", "0", "1"), WithRow), BadRows);
  EXPECT_EQ(Fault(rows("-1", "1", "1"), WithRow), BadRows);
  EXPECT_EQ(Fault(rows("1", "2", "251"), WithRow), BadRows);
  EXPECT_EQ(Fault(rows("251", "251", "251"), WithRow), BadRows);
  EXPECT_EQ(DataLoad(rows("1", "5", "250"), WithRow, false, {}).RowNumber.back(), 250);
}

}  // namespace
}  // namespace veln
