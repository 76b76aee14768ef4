#include "logger/field_split.h"

#include <gmock/gmock.h>

namespace veln {
namespace {

using testing::ElementsAre;

std::vector<std::string> Split(std::string_view line, char separator)
{
  std::vector<std::string_view> fields;
  SplitFields(line, separator, true, fields);
  return {fields.begin(), fields.end()};
}

TEST(FieldSplit, SeparatorsAndQuotes)
{
  EXPECT_THAT(Split("a,, b ,", ','), ElementsAre("a", "", "b", ""));
  EXPECT_THAT(Split("a\t\"b\tc\"\td", '\t'), ElementsAre("a", "b\tc", "d"));
  EXPECT_THAT(Split("\"a \"\"b\"\"\",c", ','), ElementsAre("a \"\"b\"\"", "c"));
  EXPECT_THAT(Split("5\" pipe,x", ','), ElementsAre("5\" pipe", "x"));
  EXPECT_THAT(Split("a,\"not closed, at all", ','), ElementsAre("a", "not closed, at all"));
  EXPECT_THAT(Split("  a \t b  \"c d\" ", BlankRuns), ElementsAre("a", "b", "c d"));
  EXPECT_THAT(Split("", ','), ElementsAre(""));
  EXPECT_THAT(Split(" ", BlankRuns), ElementsAre());
}

TEST(FieldSplit, NoMoreFieldsThanAskedFor)
{
  std::vector<std::string_view> fields;
  SplitFields("a,b,c", ',', true, fields, 2);
  EXPECT_THAT(fields, ElementsAre("a", "b"));
}

TEST(FieldSplit, NumbersWithEitherDecimalSign)
{
  EXPECT_EQ(ParseField("-1,5", true), -1.5);
  EXPECT_EQ(ParseField("-1.5", true), -1.5);
  EXPECT_EQ(ParseField("1,5", false), std::nullopt);
  EXPECT_EQ(ParseField("1,500,0", true), std::nullopt);
  EXPECT_EQ(ParseField("", true), std::nullopt);
}

TEST(FieldSplit, TextBecomesUtf8)
{
  EXPECT_EQ(FieldText("Gr\xF6\xDF"
                      "e",
                      true),
            "Gr\xC3\xB6\xC3\x9F"
            "e");
  EXPECT_EQ(FieldText("Gr\xC3\xB6", false), "Gr\xC3\xB6");
  EXPECT_EQ(FieldText("a\xF6", false), "a\xEF\xBF\xBD");
}

}  // namespace
}  // namespace veln
