#include "logger/coil_records.h"

#include "records.h"

#include <gtest/gtest.h>

namespace veln {
namespace {

TEST(CoilRecords, AreKnownByTheirStepsAndLetters)
{
  const std::string file = CoilRecordFile(3);
  EXPECT_TRUE(IsCoilRecordFile(file));
  EXPECT_FALSE(IsCoilRecordFile(file.substr(1)));
  EXPECT_FALSE(IsCoilRecordFile(std::string(25, 'x') + "\n" + std::string(25, 'y') + "\n"));
  EXPECT_FALSE(IsCoilRecordFile(""));
}

TEST(CoilRecords, ReadingsWithOffsetsLineAndTime)
{
  CoilRecords records;
  using enum CoilRecords::Kind;
  EXPECT_EQ(records.Take(CoilRecord("L looks like a line but is the logger's header").substr(0, 26)), Header);
  EXPECT_EQ(records.Line(), 0);
  EXPECT_EQ(records.Take(CoilRecord("L1")), Header);
  EXPECT_EQ(records.Take(CoilRecord("L no digit")), Header);
  EXPECT_EQ(records.Line(), 1);
  records.Take(CoilRecord("O1    -6.000      0.000"));
  records.Take(CoilRecord("O2     2.000      0.000"));
  records.Take(CoilRecord("Z16032018 12:57:52"));
  records.Take(CoilRecord("*12:00:10.000       10000"));
  ASSERT_EQ(records.Take(CoilReadingRecord(0x0A0D, 0x8400, 12345)), Reading);
  // 0x0A0D = 2573: (2573 * 5 / 1024 - 160) * 8 = -1179.49..., in bytes a line feed and a carriage return.
  EXPECT_DOUBLE_EQ(records.Reading().Long, (2573.0 * 5 / 1024 - 160) * 8 - 6);
  EXPECT_DOUBLE_EQ(records.Reading().Short, 40 + 2);  // 0x8400 is 33 * 1024
  EXPECT_EQ(records.Reading().Milliseconds, 12345);
  EXPECT_EQ(records.ClockOffset(), 43200);
  EXPECT_EQ(records.Date(), "16032018");
  EXPECT_EQ(records.Take("T short"), Damaged);
  EXPECT_EQ(records.Take(std::string(26, 'T')), Damaged);
}

TEST(CoilRecords, FixesComeOfWholeSentences)
{
  CoilRecords records;
  records.Take(CoilRecord("H"));
  const auto fix = [&](const std::string& sentence) {
    CoilRecords::Kind last = CoilRecords::Kind::Header;
    for (const std::string& record : SentenceRecords(sentence, 5000)) {
      last = records.Take(record);
    }
    return last == CoilRecords::Kind::Fix;
  };
  ASSERT_TRUE(fix("$GPGGA,015905.00,2726.53680,S,15126.05280,E,1,07,1.2,366.3,M,39.5,M,,*75"));
  EXPECT_NEAR(records.PresentFix().Latitude, -27.44228, 1E-9);
  EXPECT_NEAR(records.PresentFix().Longitude, 151.43421333, 1E-8);
  EXPECT_EQ(records.PresentFix().Milliseconds, 5000);
  EXPECT_FALSE(fix("$GPGGA,015905.00,2726.53680,S,15126.05280,E,1,07,1.2,366.3,M,39.5,M,,*76"));  // checksum
  EXPECT_FALSE(fix("$GPGGA,015905.00,2726.53680,S,15126.05280,E,0,07,1.2,366.3,M,39.5,M,,"));     // no fix
  EXPECT_FALSE(fix("$GPGGA,015905.00,,,,,0,00,,,M,,M,,"));
  EXPECT_FALSE(fix("$GPVTG,99.74,T,,M,2.37,N,4.39,K,A*06"));
  EXPECT_TRUE(fix("$GNGGA,015905.00,2726.5,N,15126.0,W,4,07,1.2,366.3,M,39.5,M,,"));
}

}  // namespace
}  // namespace veln
