#include "survey/data_load.h"

#include "support/table.h"
#include "support/testing.h"
#include "survey/raw_items.h"

namespace veln {
namespace {

const std::filesystem::path Data = VELN_TEST_DATA;

const std::map<std::string, std::string> Verdicts = {
    {"taken", "not refused"},
    {"too-many",
     "Error!  Your file contains more than 30,000 records.\nData import process has been aborted!"},
    {"too-few", "Error!  Your file contains less than 50 records.\nData import process has been aborted!"},
    {"non-numeric",
     "Error!  Non-numeric data was detected in input file!\nData import process has been aborted!\n \n"
     "Please edit this file before attempting to import it again."},
    {"non-positive",
     "Error!  Non-positive signal data was detected in input file!\n"
     "This signal data can not be log transformed.\nData import process has been aborted!"},
    {"fewer",
     "Error!  There are fewer data columns present in input file\n"
     "than you indicated!  Data import process has been aborted!"},
    {"more",
     "Error!  There are more data columns present in input file\n"
     "than you indicated!  Data import process has been aborted!"},
    {"rows", "Error!  The row numbers in your file are invalid.\nData import process has been aborted!"}};

TEST(DataLoad, SaysToAFileWhatTheTableSays)
{
  for (const auto& row : ReadRows(Data / "raw_files.txt")) {
    const auto told = [&row](const char* column) { return row[0].find(column) != std::string::npos; };
    std::string content;
    for (std::size_t i = 2; i < row.size(); ++i) {
      const std::size_t star = row[i].find('*');
      content += Repeated(row[i].substr(star + 1) + "\n", std::stoi(row[i].substr(0, star)));
    }
    EXPECT_EQ(RefusalOf([&] { DataLoad(content, {told("row"), told("id"), told("s2")}, told("log"), {}); }),
              Verdicts.at(row[1]))
        << testing::PrintToString(row);
  }
}

TEST(DataLoad, PutsEachItemInItsColumn)
{
  const RawSurvey survey = DataLoad("2.5 -.5 5. 3 4 1 3.5 1 2\n5 6 7\n" + Repeated("9 1 2 3 4 250\n", 48),
                                    {true, true, true}, false, {});
  EXPECT_EQ(survey.SiteId.size(), 50U);
  EXPECT_EQ(std::pair(survey.SiteId[0], survey.SiteId[1]), std::pair(std::int16_t{2}, std::int16_t{4}))
      << "rounded to even";
  EXPECT_EQ(std::pair(survey.CoordX[0], survey.CoordY[0]), std::pair(-.5, 5.0));
  EXPECT_EQ(std::pair(survey.Signal1[1], survey.Signal2[1]), std::pair(5.0, 6.0)) << "across line ends";
  EXPECT_EQ(std::pair(survey.RowNumber[1], survey.RowNumber[49]),
            std::pair(std::int16_t{7}, std::int16_t{250}));
  const RawSurvey logarithms =
      DataLoad(Repeated("-1 -2 1 2\n", 49) + "0 0 3 4", {.SecondSignal = true}, true, {});
  EXPECT_EQ(std::pair(logarithms.Signal1[48], logarithms.Signal2[48]), std::pair(0.0, std::log(2.0)));
  EXPECT_EQ(std::pair(logarithms.CoordX[48], logarithms.SiteId.back()), std::pair(-1.0, std::int16_t{50}));
  EXPECT_THAT(logarithms.RowNumber, IsEmpty());
}

TEST(DataLoad, TellsEveryHundredthLineAndRecordAndTheLast)
{
  std::string told;
  DataLoad(Repeated("1 2 3\n", 250), {}, false, [&told](ImportPass pass, int count) {
    told += (pass == ImportPass::Scanning ? "s" : "i") + std::to_string(count) + " ";
  });
  EXPECT_EQ(told, "s0 s100 s200 s250 i0 i100 i200 i250 ");
}

TEST(RawItems, AreThoseOfTheTable)
{
  for (const auto& row : ReadRows(Data / "raw_items.txt")) {
    RawItems reader(row[0]);
    std::vector<std::string> items;
    while (const auto item = reader.Next()) {
      items.emplace_back(*item);
    }
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(items, std::vector(row.begin() + 1, row.end())) << row[0];
  }
}

TEST(RawItems, LinesEndInThreeWaysAndTheEmptyRestIsNone)
{
  EXPECT_EQ(CountLines(""), 0U);
  EXPECT_EQ(CountLines("a\nb\r\nc\rd"), 4U);
  EXPECT_EQ(CountLines("a\nb\n"), 2U);
  EXPECT_EQ(CountLines("a\nb\n\n"), 3U);
  EXPECT_EQ(CountLines("a\n\r"), 2U);
  EXPECT_EQ(CountLines("a\n "), 2U);
  EXPECT_EQ(SkipByteOrderMark("1\xEF\xBB\xBF"), "1\xEF\xBB\xBF");
}

}  // namespace
}  // namespace veln
