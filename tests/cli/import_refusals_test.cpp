#include "cli/veln_session.h"

namespace veln {
namespace {

struct ImportCase {
  const char* What;
  std::string Survey;
  std::vector<std::string> Options;
  std::string Message;
};

/// One fault of each kind; which files are faulty, the import itself knows.
std::vector<ImportCase> FaultySurveys()
{
  const std::string aborted = "Data import process has been aborted!\n";
  const auto with = [](const std::string& further) {
    return Lines(50, [&further](int i) { return GridLine(i) + "," + further; });
  };
  return {{"49 lines", GridText(49), {}, "Error!  Your file contains less than 50 records.\n" + aborted},
          {"a header line",
           "x,y,s1\n" + GridText(60),
           {},
           "Error!  Non-numeric data was detected in input file!\n" + aborted +
               " \nPlease edit this file before attempting to import it again.\n"},
          {"site IDs told, not there",
           GridText(50),
           {"--site-id"},
           "Error!  There are fewer data columns present in input file\nthan you indicated!  " + aborted},
          {"s2 there, not told",
           with("8"),
           {},
           "Error!  There are more data columns present in input file\nthan you indicated!  " + aborted},
          {"row 251",
           with("251"),
           {"--type", "transect"},
           "Error!  The row numbers in your file are invalid.\n" + aborted},
          {"a zero in s2 under log",
           with("0"),
           {"--s2", "--log"},
           "Error!  Non-positive signal data was detected in input file!\n"
           "This signal data can not be log transformed.\n" +
               aborted},
          {"a constant s2",
           with("8"),
           {"--s2", "--label2", "deep"},
           "Error!  The signal column \"deep\" is constant: all its values are equal,\n"
           "so that two signals can not be compared.\n" +
               aborted}};
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

INSTANTIATE_TEST_SUITE_P(Of, ImportRefusal, testing::ValuesIn(FaultySurveys()));

void PrintTo(const ImportCase& refused, std::ostream* out)
{
  *out << refused.What;
}

TEST(SurveyFile, ThatIsMissingOrADirectoryIsRefused)
{
  VelnSession session;
  for (const char* missing : {"nowhere.txt", ""}) {
    EXPECT_EQ(session.Veln({"run", missing}).Err,
              "Error! File not found! Please re-enter filename information...\n");
  }
  const ProcessResult directory = session.Veln({"run", "data"});
  EXPECT_EQ(directory.Status, 1);
  EXPECT_EQ(directory.Err, "data\ncould not be read: Is a directory\n");
}

}  // namespace
}  // namespace veln
