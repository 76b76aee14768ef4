#include "cli/veln_session.h"

#include <nlohmann/json.hpp>

namespace veln {
namespace {

bool HasControlCharacters(const std::string& text)
{
  return std::ranges::any_of(text, [](unsigned char c) { return (c < ' ' && c != '\n') || c == 0x7F; });
}

TEST(ProgressText, InAPipeHasNoControlCharacters)
{
  VelnSession session;
  const ProcessResult result = session.Run(GridText(400), {"--ads", "limited", "--design", "6"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_FALSE(HasControlCharacters(result.Out));
  EXPECT_THAT(result.Out, StartsWith("Project       demo, field FLD1\nImport        400 sites, 1 signal"));
  EXPECT_THAT(result.Out, HasSubstr("Data file information & statistics saved to FLD1info.txt\n"));
  EXPECT_THAT(result.Out, HasSubstr("  Strata 2 "));
  EXPECT_THAT(result.Out, Not(HasSubstr("designs to analyze")));
  EXPECT_THAT(result.Out, EndsWith("FLD1data.svy\n"));
}

TEST(ProgressText, OnATerminalCountsAndClearsTheCounter)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(400));
  const ProcessResult result =
      RunOnTerminal(VELN_PROGRAM, {"run", "survey.txt", "--ads", "limited"}, session.Root());
  EXPECT_EQ(result.Status, 0);
  EXPECT_THAT(result.Out, HasSubstr("\rScanning Line #  400"));
  EXPECT_THAT(result.Out, HasSubstr("\rImporting Line # 300\rImporting Line # 400"));
  EXPECT_THAT(result.Out, HasSubstr("\rSelection     design 6 of 6"));
  EXPECT_THAT(result.Out, HasSubstr("\r" + std::string(20, ' ') + "\rImport        400 sites"));
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

TEST(Output, OfAQuietRunIsEmptyAndItsDocumentIsNot)
{
  VelnSession session;
  EXPECT_EQ(session.Run(GridText(60), {"--quiet"}).Out, "");
  const ProcessResult both = session.Run(GridText(60), {"--quiet", "--json", "--overwrite"});
  const ProcessResult document = session.Run(GridText(60), {"--json", "--overwrite"});
  EXPECT_EQ(both.Out, document.Out);
  EXPECT_EQ(nlohmann::json::parse(document.Out).at("program"), "VELN-QTRD");
  EXPECT_FALSE(HasControlCharacters(document.Out));
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
  const auto document = nlohmann::json::parse(result.Out);
  EXPECT_EQ(document.at("import").at("file"), "r\xef\xbf\xbdw.txt");
  EXPECT_EQ(document.at("files").at(0), session.Root().string() + "/f\xef\xbf\xbd/data/demo/FLD1info.txt");
  EXPECT_EQ(document.at("signals").at(0).at("label"), "\xc3\xa4");
  const auto info = SplitLines(ReadText(session.Root() / "f\xff/data/demo/FLD1info.txt"));
  EXPECT_EQ(info.at(0), "Input File:   r\xfew.txt");
  EXPECT_EQ(info.at(2), "Output File:  " + session.Root().string() + "/f\xff/data/demo/FLD1info.txt");
}

TEST(Export, IsWrittenOnceADesignWasSavedAndOnlyIfWanted)
{
  for (const auto& [options, exported] :
       std::vector<std::pair<std::vector<std::string>, bool>>{{{"--design", "6", "--no-export"}, false},
                                                              {{"--ads", "limited"}, false},
                                                              {{"--manual", "1"}, true}}) {
    VelnSession session;
    session.Run(GridText(60), options);
    EXPECT_EQ(exists(session.Output("data.svy")), exported) << testing::PrintToString(options);
  }
}

}  // namespace
}  // namespace veln
