#include "survey/import_advice.h"

#include "support/files.h"
#include "survey/import_fault.h"

#include <gmock/gmock.h>

namespace veln {
namespace {

using testing::ElementsAre;

SurveyState StateOf(std::vector<double> x, std::vector<double> y, std::vector<std::int16_t> ids = {})
{
  SurveyState state;
  for (std::size_t i = ids.size(); i < x.size(); ++i) {
    ids.push_back(static_cast<std::int16_t>(i + 1));
  }
  state.CoordX = std::move(x);
  state.CoordY = std::move(y);
  state.SiteId = std::move(ids);
  return state;
}

std::vector<std::string> Codes(const SurveyState& state)
{
  std::vector<std::string> codes;
  for (const Advice& advice : AdviseImport(state)) {
    codes.push_back(advice.Code);
  }
  return codes;
}

TEST(ImportAdvice, CoordinatesThatLookLikeDegrees)
{
  EXPECT_THAT(Codes(StateOf({-1.25, -1.24}, {52.5, 52.51})), ElementsAre("degrees"));
  EXPECT_THAT(Codes(StateOf({52.5, 52.51}, {138, 138.1})), ElementsAre("degrees"));
  EXPECT_THAT(Codes(StateOf({52.5, 53.0}, {138, 138.1})), ElementsAre());  // half a degree
  EXPECT_THAT(Codes(StateOf({98, 98.1}, {138, 138.1})), ElementsAre());    // no latitude
  EXPECT_THAT(Codes(StateOf({0, 100}, {0, 50})), ElementsAre());
}

TEST(ImportAdvice, IdsThatOccurMoreThanOnce)
{
  EXPECT_EQ(AdviseImport(StateOf({0, 10, 20, 30, 40, 50}, {0, 9, 0, 9, 0, 9}, {7, 5, 7, 5, 7, 1}))[0].Text,
            "2 site IDs occur more than once; a chosen ID stands for all its sites");
}

TEST(ImportAdvice, PositionsThatRepeatTheOneBefore)
{
  std::vector<double> x(40);
  std::vector<double> y(40);
  for (std::size_t i = 0; i < x.size(); ++i) {
    x[i] = static_cast<double>(i);
  }
  x[10] = x[9];
  x[20] = x[19];
  EXPECT_THAT(Codes(StateOf(x, y)), ElementsAre());  // one in twenty
  x[30] = x[29];
  EXPECT_EQ(AdviseImport(StateOf(x, y))[0].Text, "3 of 40 positions repeat the one before");
}

TEST(ImportFault, FindsThePlace)
{
  const auto lines = [](const std::string& line, const std::string& odd) {
    return Repeated(line, 30) + odd + Repeated(line, 30);
  };
  const RecordLayout two{false, true, true};
  const RecordLayout rows{true, false, false};
  EXPECT_EQ(ImportFault(lines("1 2 3 4 5\r\n", "1 2 3 n/a 5\n"), two, false),
            "record 31, s1: \"n/a\" is not a number");
  EXPECT_EQ(ImportFault(lines("1,2,3\n", "1,2,,3\n"), {}, false), "record 31, s1: \"\" is not a number");
  EXPECT_EQ(ImportFault(lines("1,2,3\n", "1,2\n"), {}, false), "line 31 has 2 items, a record should have 3");
  EXPECT_EQ(ImportFault(lines("1,2,3\n", "\n"), {}, false), "line 31 has 0 items, a record should have 3");
  EXPECT_EQ(ImportFault(lines("1,2,3\n", "1,2,-3\n"), {}, true), "1 record has a reading of 0 or less: 31");
  EXPECT_EQ(ImportFault(lines("1,2,3,2\n", "1,2,3,1\n"), rows, false), "record 31, row: 1 comes behind 2");
  EXPECT_EQ(ImportFault(Repeated("1,2,3\n", 30001), {}, false), "the file has 30001 lines");
  EXPECT_EQ(ImportFault(lines("1,2,3\n", "1,2,3\n"), {}, true), "");
}

}  // namespace
}  // namespace veln
