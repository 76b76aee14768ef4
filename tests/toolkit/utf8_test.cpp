#include "toolkit/utf8.h"

#include "support/testing.h"

namespace veln {

using namespace std::string_view_literals;

TEST(Utf8, WellFormedTextReachesFromNulToTheLastCharacter)
{
  for (const std::string_view text : {""sv, "\0a"sv, "\x7F"sv, "\u0080"sv, "\u07FF"sv, "\u0800"sv, "\uD7FF"sv,
                                      "\uE000"sv, "\uFFFF"sv, "\U00010000"sv, "\U0010FFFF"sv}) {
    EXPECT_TRUE(IsUtf8(text));
  }
  EXPECT_EQ(CharacterCount("\0\u0080\u07FF\u0800\uFFFF\U00010000\U0010FFFF"sv), 7U);
}

TEST(Utf8, DamagedTextIsToldAndEachStrayByteCounts)
{
  struct Damaged {
    std::string_view Text;
    std::size_t Count;
  };
  for (const auto& [text, count] : {
           Damaged{"\x80"sv, 1},              // a continuation alone
           Damaged{"M\xFCller"sv, 6},         // Latin-1
           Damaged{"\xC3"sv, 1},              // cut behind the first byte
           Damaged{"\xE2\x82"sv, 2},          // cut behind the second
           Damaged{"\xE2\x82z"sv, 3},         // the third is missing
           Damaged{"\xC0\xAF"sv, 2},          // overlong in two,
           Damaged{"\xE0\x9F\xBF"sv, 3},      // three
           Damaged{"\xF0\x8F\xBF\xBF"sv, 4},  // and four bytes
           Damaged{"\xED\xA0\x80"sv, 3},      // a surrogate
           Damaged{"\xF4\x90\x80\x80"sv, 4},  // above U+10FFFF
           Damaged{"\xF8\x88\x80\x80\x80"sv, 5},
           Damaged{"\xFF"sv, 1},
       }) {
    EXPECT_FALSE(IsUtf8(text));
    EXPECT_EQ(CharacterCount(text), count);
  }
}

}  // namespace veln
