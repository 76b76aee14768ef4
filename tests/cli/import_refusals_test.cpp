#include "cli/veln_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veln {
namespace {

using testing::ElementsAre;

constexpr const char* Aborted = "Data import process has been aborted!\n";

struct ImportCase {
  const char* What;
  std::string Survey;
  std::vector<std::string> Options;
  std::string Message;
};

std::string TransectText(const std::vector<int>& rows)
{
  return Lines(60, [&rows](int i) {
    const int row = i < static_cast<int>(rows.size()) ? rows[static_cast<std::size_t>(i)] : rows.back();
    return GridLine(i) + "," + std::to_string(row);
  });
}

/// Fifty sites with site numbers, of which one is 40000.
std::string WithLargeSiteId(int place)
{
  return Lines(50, [place](int i) { return std::to_string(i == place ? 40000 : i + 1) + "," + GridLine(i); });
}

std::string TwoSignals(int sites, const std::string& second)
{
  return Lines(sites, [&second](int i) { return GridLine(i) + "," + second; });
}

std::vector<ImportCase> FaultyColumns()
{
  const std::string fewer =
      "Error!  There are fewer data columns present in input file\nthan you indicated!  " +
      std::string(Aborted);
  const std::string more =
      "Error!  There are more data columns present in input file\nthan you indicated!  " +
      std::string(Aborted);
  return {{"a blank last line", GridText(50) + "\n", {}, fewer},
          {"site IDs told, not there", GridText(50), {"--site-id"}, fewer},
          {"s2 told, not there", GridText(50), {"--s2"}, fewer},
          {"rows told, not there", GridText(50), {"--type", "transect"}, fewer},
          {"s2 there, not told", TwoSignals(50, "8"), {}, more},
          {"site ID 40000 in the last record", WithLargeSiteId(49), {"--site-id"}, more},
          {"site ID 40000 before", WithLargeSiteId(48), {"--site-id"}, fewer}};
}

std::vector<ImportCase> FaultyContent()
{
  const std::string nonNumeric = "Error!  Non-numeric data was detected in input file!\n" +
                                 std::string(Aborted) +
                                 " \nPlease edit this file before attempting to import it again.\n";
  const std::string rows = "Error!  The row numbers in your file are invalid.\n" + std::string(Aborted);
  const std::string notPositive =
      "Error!  Non-positive signal data was detected in input file!\n"
      "This signal data can not be log transformed.\n" +
      std::string(Aborted);
  return {{"49 lines",
           GridText(49),
           {},
           "Error!  Your file contains less than 50 records.\n" + std::string(Aborted)},
          {"30,001 lines",
           GridText(30001),
           {},
           "Error!  Your file contains more than 30,000 records.\n" + std::string(Aborted)},
          {"a header line", "x,y,s1\n" + GridText(60), {}, nonNumeric},
          {"rows 1 2 1", TransectText({1, 2, 1}), {"--type", "transect"}, rows},
          {"row 0", TransectText({0, 1}), {"--type", "transect"}, rows},
          {"row 251", TransectText({1, 251}), {"--type", "transect"}, rows},
          {"a zero in s2 under log", TwoSignals(50, "0"), {"--s2", "--log"}, notPositive},
          {"a constant s2",
           TwoSignals(50, "8"),
           {"--s2", "--label2", "deep"},
           "Error!  The signal column \"deep\" is constant: all its values are equal,\n"
           "so that two signals can not be compared.\n" +
               std::string(Aborted)}};
}

class ImportRefusal : public testing::TestWithParam<ImportCase> {};

TEST_P(ImportRefusal, TellsItsMessageAndLeavesNoFile)
{
  VelnSession session;
  const ProcessResult result = session.Run(GetParam().Survey, GetParam().Options);
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Err, GetParam().Message);
  EXPECT_EQ(result.Out, "Project       demo, field FLD1\n");
  EXPECT_THAT(ListFiles(session.Root()), ElementsAre("data/", "data/demo/", "survey.txt"));
}

INSTANTIATE_TEST_SUITE_P(Columns, ImportRefusal, testing::ValuesIn(FaultyColumns()));
INSTANTIATE_TEST_SUITE_P(Content, ImportRefusal, testing::ValuesIn(FaultyContent()));

void PrintTo(const ImportCase& refused, std::ostream* out)
{
  *out << refused.What;
}

TEST(SurveyFile, OfFiftyAndOfThirtyThousandLinesPasses)
{
  for (const int lines : {50, 30000}) {
    VelnSession session;
    const ProcessResult result = session.Run(GridText(lines), {"--manual", "50", "--no-export"});
    EXPECT_EQ(result.Status, 0) << result.Err;
    EXPECT_THAT(session.Outputs(), ElementsAre("info.txt", "ugsd.txt"));
  }
}

TEST(SurveyFile, ThatIsMissingOrADirectoryIsRefused)
{
  VelnSession session;
  EXPECT_EQ(session.Veln({"run", "nowhere.txt"}).Err,
            "Error! File not found! Please re-enter filename information...\n");
  EXPECT_EQ(session.Veln({"run", ""}).Err,
            "Error! File not found! Please re-enter filename information...\n");
  const ProcessResult directory = session.Veln({"run", "data"});
  EXPECT_EQ(directory.Status, 1);
  EXPECT_EQ(directory.Err, "data\ncould not be read: Is a directory\n");
}

}  // namespace
}  // namespace veln
