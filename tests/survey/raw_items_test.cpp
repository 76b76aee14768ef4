#include "survey/raw_items.h"

#include "support/testing.h"

namespace veln {
namespace {

std::vector<std::string> Items(std::string_view content)
{
  RawItems reader(content);
  std::vector<std::string> items;
  while (const auto item = reader.Next()) {
    items.emplace_back(*item);
  }
  EXPECT_TRUE(reader.AtEnd());
  return items;
}

TEST(RawItems, EndAtCommasBlanksTabsAndLineEndsAlike)
{
  EXPECT_THAT(Items("1,2 3\t4\n5\r\n6\r7"), ElementsAre("1", "2", "3", "4", "5", "6", "7"));
  EXPECT_THAT(Items("  1 ,  2\t,\t3   4 \n\n \r\n 5 "), ElementsAre("1", "2", "3", "4", "5"));
  EXPECT_THAT(Items(" \t\r\n"), IsEmpty());
}

TEST(RawItems, CommaBelongsToTheItemBeforeItOnItsLine)
{
  EXPECT_THAT(Items("1,2,\n3, \n4"), ElementsAre("1", "2", "3", "4"));
  EXPECT_THAT(Items("1,,2"), ElementsAre("1", "", "2"));
  EXPECT_THAT(Items("1 , , 2"), ElementsAre("1", "", "2"));
  EXPECT_THAT(Items("1\n,2"), ElementsAre("1", "", "2"));
  EXPECT_THAT(Items("1,\r\n , 2"), ElementsAre("1", "", "2"));
}

TEST(RawItems, QuotesHoldWhateverLiesBetween)
{
  EXPECT_THAT(Items("\"1\",\"2 3,\n4\" 5"), ElementsAre("1", "2 3,\n4", "5"));
  EXPECT_THAT(Items("\"1\"2 \"\",3"), ElementsAre("1", "2", "", "3"));
  EXPECT_THAT(Items("1\"2\" 3"), ElementsAre("1\"2\"", "3"));
  EXPECT_THAT(Items("1 \"2 3\n4"), ElementsAre("1", "2 3\n4"));
  EXPECT_THAT(Items("1 \""), ElementsAre("1", ""));
}

TEST(RawItems, LinesEndInThreeWaysAndTheEmptyRestIsNone)
{
  EXPECT_EQ(CountLines(""), 0U);
  EXPECT_EQ(CountLines("a\nb\r\nc\rd"), 4U);
  EXPECT_EQ(CountLines("a\nb\n"), 2U);
  EXPECT_EQ(CountLines("a\nb\n\n"), 3U);
  EXPECT_EQ(CountLines("a\n\r"), 2U);
  EXPECT_EQ(CountLines("a\n "), 2U);
}

TEST(RawItems, ByteOrderMarkIsSkippedAtTheStartOnly)
{
  EXPECT_EQ(SkipByteOrderMark("\xEF\xBB\xBF"
                              "1"),
            "1");
  EXPECT_EQ(SkipByteOrderMark("1\xEF\xBB\xBF"), "1\xEF\xBB\xBF");
}

}  // namespace
}  // namespace veln
