#include "cli/veln_session.h"

namespace veln {
namespace {

/// A run that a step refuses, with the files that the steps before it have left.
struct StepCase {
  const char* What;
  std::string Survey;
  std::vector<std::string> Options;
  std::string Message;
  std::vector<std::string> Left;
};

void PrintTo(const StepCase& refused, std::ostream* out)
{
  *out << refused.What;
}

std::vector<StepCase> RefusedSteps()
{
  const std::vector<std::string> info = {"info.txt"};
  return {{"a column that a deletion leaves constant",
           Lines(61, [](int i) { return std::to_string(i) + ",1," + (i == 30 ? "90" : "7"); }),
           {"--delete-outliers", "1"},
           "Error!  The signal column \"EMv\" is constant: all its values are equal.\n"
           "The signal data can not be decorrelated.\n",
           {}},
          {"a second design of 12 sites of 50",
           GridText(50),
           {"--design", "12", "--design", "10"},
           "A design of this size needs 48 available survey sites, but there are only 38.\n",
           {"gps1.txt", "info.txt", "rsd1.txt", "xrs1.asc"}},
          {"a selection for 20 sites of 79",
           GridText(79),
           {"--ads", "full", "--design", "18"},
           "A design of this size needs 80 available survey sites, but there are only 79.\n",
           info},
          {"a stratum of 399 sites",
           GridText(399),
           {"--design", "12,stratum=1"},
           "Error!  Invalid Parsing Values!\n",
           info},
          {"all sites on one point",
           Lines(60, [](int i) { return "5,5," + std::to_string(i % 20); }),
           {},
           "Error!  All sites of the survey lie on one point, so that no spacing is defined.\n"
           "A design can not be made.\n",
           info},
          {"unknown manual sites",
           GridText(60),
           {"--manual", "7,0,61,40000"},
           " Warning! Site  0 does not exist.\n Warning! Site  61 does not exist.\n"
           " Warning! Site  40000 does not exist.\n",
           info},
          {"a reduction by 67% of 5000 sites",
           GridText(5000),
           {"--reduce", "67"},
           "A reduction by 67% needs a survey of at least 7500 sites that is not reduced already.\n",
           info}};
}

class StepRefusal : public testing::TestWithParam<StepCase> {};

TEST_P(StepRefusal, TellsItsMessageAndKeepsEarlierFiles)
{
  VelnSession session;
  std::vector<std::string> options = GetParam().Options;
  options.emplace_back("--json");
  const ProcessResult result = session.Run(GetParam().Survey, options);
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Err, GetParam().Message);
  EXPECT_EQ(result.Out, "");
  EXPECT_EQ(session.Outputs(), GetParam().Left);
}

INSTANTIATE_TEST_SUITE_P(Of, StepRefusal, testing::ValuesIn(RefusedSteps()));

TEST(AvailableSites, AreJustEnoughAtTheLimitOfEachSize)
{
  for (const auto& [sites, size] : {std::pair{80, "20"}, std::pair{400, "12,stratum=2"}}) {
    VelnSession session;
    EXPECT_EQ(session.Run(GridText(sites), {"--design", size}).Err, "");
  }
}

// 50 sites less 12, 6, 6 and 6 leave 20, which are too few for any size.
TEST(AvailableSites, BelowTwentyFourAreANoteAndThenARefusalInTheSameWords)
{
  const std::string words =
      "There are not enough avaliable survey sites to generate any more Sampling Designs\n";
  std::vector<std::string> designs = {"--design", "12", "--design", "6", "--design", "6", "--design", "6"};
  VelnSession session;
  const ProcessResult note = session.Run(GridText(50), designs);
  EXPECT_EQ(note.Status, 0);
  EXPECT_EQ(note.Err, "");
  EXPECT_NE(note.Out.find(words), std::string::npos);

  designs.insert(designs.end(), {"--design", "5", "--field", "FLD2"});
  const ProcessResult refused = session.Run(GridText(50), designs);
  EXPECT_EQ(refused.Status, 1);
  EXPECT_EQ(refused.Err, words);
  EXPECT_THAT(session.Outputs(), Contains("FLD2rsd4.txt"));
  EXPECT_THAT(session.Outputs(), Not(Contains("FLD2data.svy")));
}

TEST(UnwritableFile, OfTheInformationIsAWarningAndTheRunGoesOn)
{
  VelnSession session;
  WriteText(session.Output("info.txt") / "kept", "");
  WriteText(session.Output("tstd.std") / "kept", "");
  const std::string survey = Lines(60, [](int i) { return GridLine(i) + ",1"; });
  const ProcessResult result = session.Run(
      survey, {"--overwrite", "--json", "--type", "transect", "--transition", "--transition-file"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Err,
            "Warning: could not create output TSD file...\n"
            "Warning: could not create survey information file...\n" +
                session.Output("info.txt").string() + "\ncould not be written: Is a directory\n");
  EXPECT_THAT(result.Out, EndsWith("}\n"));
  EXPECT_EQ(result.Out.find("info.txt"), std::string::npos);
  EXPECT_THAT(session.Outputs(), ElementsAre("data.svy", "gps1.txt", "info.txt/", "info.txt/kept", "rsd1.txt",
                                             "tstd.std/", "tstd.std/kept", "xrs1.asc"));
}

TEST(UnwritableFile, OfADesignOrTheExportIsRefused)
{
  for (const auto& [file, warning] :
       {std::pair{"ugsd.txt", "Warning: could not create output UGSD file...\n"},
        {"xrs1.asc", ""},
        {"data.svy", ""}}) {
    VelnSession session;
    WriteText(session.Output(file) / "kept", "");
    const ProcessResult result = session.Run(GridText(60), {"--manual", "1", "--design", "6", "--json"});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Err,
              warning + session.Output(file).string() + "\ncould not be written: Is a directory\n");
    EXPECT_EQ(result.Out, "");
  }
}

}  // namespace
}  // namespace veln
