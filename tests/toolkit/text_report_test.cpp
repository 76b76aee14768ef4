#include "toolkit/text_report.h"

#include "support/testing.h"

namespace veln {

TEST(TextReport, ItemsStandAtTheirColumn)
{
  TextReport report;
  report.At(3).Text("a").At(4).Text("b").At(8).Text("c").EndLine().At(1).Text("d");
  EXPECT_EQ(report.Content(), "  ab   c\r\nd");
}

TEST(TextReport, AColumnThatTheLineHasPassedIsOnTheNextLine)
{
  TextReport report;
  report.Text("abcd").At(5).Text("e").At(5).Text("f").At(2).Text("g");
  EXPECT_EQ(report.Content(), "abcde\r\n    f\r\n g");
}

TEST(TextReport, ColumnsBelowOneAreTheFirst)
{
  TextReport report;
  report.At(0).Text("a").At(-5).Text("b").At(1).EndLine();
  EXPECT_EQ(report.Content(), "a\r\nb\r\n\r\n");
}

TEST(TextReport, ColumnsCountCharactersNotBytes)
{
  TextReport report;
  report.Text("\u00C4cker\u2009\U0001F33E").At(9).Text("|").EndLine();  // seven characters, thirteen bytes
  report.Text("\u6C34").NextZone().Text("|").EndLine();
  report.Text("e\u0301").At(4).Text("|");  // a combining accent is a character of its own
  EXPECT_EQ(report.Content(), "\u00C4cker\u2009\U0001F33E |\r\n\u6C34             |\r\ne\u0301 |");
}

TEST(TextReport, PrintZonesAreFourteenColumnsWide)
{
  for (const auto& [length, column] :
       {std::pair{0U, 15U}, {4U, 15U}, {13U, 15U}, {14U, 29U}, {27U, 29U}, {28U, 43U}}) {
    EXPECT_EQ(TextReport().Text(std::string(length, 'x')).NextZone().Content().size() + 1, column);
  }
}

TEST(TextReport, NumbersKeepTheirSignPlaceAndTrailingBlank)
{
  TextReport report;
  report.Number(12).Number(-0.25).Number(1.005, "0.00").Number(1.2, "0.00").Number(-0.001, "0.00");
  EXPECT_EQ(report.Content(), " 12 -.25  1.01  1.2  0 ");
  EXPECT_EQ(TextReport().At(5).Number(7).At(7).Text("x").Content(), "     7 \r\n      x");
}

TEST(TextReport, BlankLinesHoldThreeBlanks)
{
  EXPECT_EQ(TextReport().BlankLines(2).Line("a").BlankLines().Content(), "   \r\n   \r\na\r\n   \r\n");
}

}  // namespace veln
