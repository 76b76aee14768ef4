#include "cli/veln_session.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace veln {
namespace {

using Json = nlohmann::ordered_json;

std::string Data(const char* name)
{
  return ReadText(std::filesystem::path(VELN_TEST_DATA) / name);
}

TEST(CommandLine, ExplainsItselfOnStandardOutput)
{
  VelnSession session;
  for (const auto& [arguments, text] : std::vector<std::pair<std::vector<std::string>, std::string>>{
           {{"--help"}, Data("help.txt")},
           {{"run", "--help"}, Data("run_help.txt")},
           {{"--version"}, "veln 2.35R\n"}}) {
    const ProcessResult result = session.Veln(arguments);
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Out, text);
    EXPECT_EQ(result.Err, "");
  }
}

TEST(SurveyFile, ThatIsMissingOrADirectoryIsRefused)
{
  VelnSession session;
  for (const char* missing : {"nowhere.txt", ""}) {
    const ProcessResult result = session.Veln({"run", missing});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Err, "Error! File not found! Please re-enter filename information...\n");
  }
  EXPECT_EQ(session.Veln({"run", "data"}).Err, "data\ncould not be read: Is a directory\n");
}

TEST(FieldInUse, IsAskedBeforeTheSurveyIsRead)
{
  VelnSession session;
  WriteText(session.Output("info.txt"), "");
  EXPECT_EQ(session.Veln({"run", "nowhere.txt"}).Status, 3);
  EXPECT_EQ(session.Veln({"run", "nowhere.txt", "--overwrite"}).Status, 1);
}

TEST(ProgressText, OnATerminalCountsAndClearsTheCounter)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(400));
  const ProcessResult result =
      RunOnTerminal(VELN_PROGRAM, {"run", "survey.txt", "--ads", "limited"}, session.Root());
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Out, HasSubstr("field FLD1\r\n\rScanning Line #  0\rScanning Line #  100"));
  EXPECT_THAT(result.Out, HasSubstr("\rScanning Line #  400\rImporting Line # 0  \rImporting Line # 100"));
  EXPECT_THAT(result.Out,
              HasSubstr("\rImporting Line # 400\r" + std::string(20, ' ') + "\rImport        400 sites"));
  EXPECT_THAT(result.Out, HasSubstr("\rSelection     design 6 of 6\r" + std::string(27, ' ') +
                                    "\rSelection     6 designs"));
}

TEST(ProgressText, OfARefusedImportLeavesNoCounterOnTheTerminal)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(200) + "word 0 0\n");
  const ProcessResult result = RunOnTerminal(VELN_PROGRAM, {"run", "survey.txt"}, session.Root());
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Out,
              HasSubstr("Importing Line # 200\r" + std::string(20, ' ') + "\rError!  Non-numeric"));
}

/// Every value of a document that is told stands in the other one, numbers to 1E-12.
void ExpectNear(const Json& found, const Json& told, const std::string& place)
{
  if (told.is_number()) {
    ASSERT_TRUE(found.is_number()) << place;
    EXPECT_NEAR(found.get<double>(), told.get<double>(), 1E-12 * (1 + std::abs(told.get<double>()))) << place;
  } else if (told.is_structured()) {
    for (const auto& [key, value] : told.items()) {
      const Json& beside = told.is_array() ? found.at(std::stoul(key)) : found.at(key);
      ExpectNear(beside, value, place + "." + key);
    }
  } else {
    EXPECT_EQ(found, told) << place;
  }
}

/// The survey is of 52 sites whose standardised signal is told outright: the squares of z sum to
/// 3 * (2 * 2.5^2 + 2 * 1.5^2) = 51, which is n - 1, so that 40 + 8 z has mean 40 and deviation 8 without
/// rounding.
///
/// A limited design has the levels 0, 2.5, -2.5, 1.5 and -1.5. Points 2 to 5 find their three sites in one
/// corner each, point 1 the first three sites at 0: 1013 at (10,10), 1014 at (50,50), 1015 at (10,90). The
/// first sweep puts 1014 in, since every nearest distance is then 50 sqrt(2); the second changes nothing. The
/// field is a square of 100, so Opt-Criteria is 100 / (sqrt(5) - 0.5) / (50 sqrt(2)) = 0.81461. Of the sites
/// with |z| below 1, 1017 at (50,0) and 1018 at (100,50) are both 50 away from the design: the first is
/// taken. At D-factors 0.9 and 1.1 the nearest three sites of each level are the same.
///
/// Its quality: the line's X'X is diagonal with 6 and 2 x 6.25 + 2 x 2.25 = 17. The 50 sites that are free
/// when the design is made have the sum of squares 51. The hull is the square of 100.
TEST(RunDocument, HoldsWhatIsWorkedOutByHandInItsOrderAndTypes)
{
  VelnSession session;
  const ProcessResult result =
      session.Run(Data("worked_survey.txt"), {"--json", "--site-id", "--masking-level", "3.25", "--manual",
                                              "1052,1019,1052", "--ads", "limited", "--design", "6"});
  EXPECT_EQ(result.Status, 0) << result.Err;
  Json document = Json::parse(SteadyText(result.Out, session.Root()));
  const Json quality = document["designs"][0]["quality"];
  document["designs"][0].erase("quality");
  // Compared as text: 40 and 40.0, equal as numbers, are of two types.
  EXPECT_EQ(document.dump(1), Json::parse(Data("worked_run.json")).dump(1));
  ExpectNear(quality, Json::parse(Data("worked_quality.json")), "quality");
  EXPECT_EQ(quality["chance"]["plans"], 1000);
  EXPECT_LE(quality["chance"]["both"], 1000);
  EXPECT_GE(quality["equivalent_random_sites"], 6);
}

TEST(Output, OfAQuietRunIsItsDocumentAlone)
{
  VelnSession session;
  const ProcessResult document = session.Run(GridText(60), {"--json"});
  EXPECT_EQ(session.Run(GridText(60), {"--quiet", "--json", "--overwrite"}).Out, document.Out);
  EXPECT_THAT(document.Out,
              AllOf(StartsWith("{\n  \"schema\": 1,\n  \"program\": \"VELN-QTRD\",\n"), EndsWith("}\n")));
}

TEST(Output, ThatCanNotBeWrittenEndsWithOne)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(60));
  const ProcessResult result =
      RunProcess(VELN_PROGRAM, {"run", "survey.txt", "--json"}, session.Root(), "/dev/full");
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Err, "Standard output could not be written.\n");
}

TEST(Output, OfPathsThatAreNotUtf8StandsUnchangedInFiles)
{
  VelnSession session;
  WriteText(session.Root() / "r\xfew.txt", GridText(60));
  const ProcessResult result =
      session.Veln({"run", "r\xfew.txt", "--root", "f\xff", "--json", "--label1", "\xc3\xa4"});
  EXPECT_EQ(result.Status, 0) << result.Err;
  const auto document = Json::parse(result.Out);
  EXPECT_EQ(document.at("import").at("file"), "r\xef\xbf\xbdw.txt");
  EXPECT_EQ(document.at("files").at(0), session.Root().string() + "/f\xef\xbf\xbd/data/demo/FLD1info.txt");
  EXPECT_EQ(document.at("signals").at(0).at("label"), "\xc3\xa4");
  const auto info = SplitLines(ReadText(session.Root() / "f\xff/data/demo/FLD1info.txt"));
  EXPECT_EQ(info.at(0), "Input File:   r\xfew.txt");
  EXPECT_EQ(info.at(2), "Output File:  " + session.Root().string() + "/f\xff/data/demo/FLD1info.txt");
}

}  // namespace
}  // namespace veln
