#include "cli/veln_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veln {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

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

/// x, y and one signal; `signal` gives it from the site's number, counted from 0.
std::string SignalText(int sites, const std::function<std::string(int)>& signal)
{
  return Lines(
      sites, [&signal](int i) { return std::to_string(i % 10) + " " + std::to_string(i) + " " + signal(i); });
}

std::vector<StepCase> RefusedSignals()
{
  const std::string constant =
      "Error!  The signal column \"EMv\" is constant: all its values are equal.\n"
      "The signal data can not be decorrelated.\n";
  return {{"a constant column", SignalText(50, [](int) { return "7"; }), {}, constant, {}},
          {"a column that a deletion leaves constant",
           SignalText(61, [](int i) { return i == 30 ? "90" : "7"; }),
           {"--delete-outliers", "1"},
           constant,
           {}},
          {"two columns that say the same",
           SignalText(50, [](int i) { return std::to_string(i) + " " + std::to_string(2 * i + 1); }),
           {"--s2"},
           "Error!  The two signal columns are perfectly correlated (r = 1.0000),\n"
           "so that the second tells nothing new.  The signal data can not be decorrelated.\n",
           {}}};
}

std::vector<StepCase> RefusedDesigns()
{
  const std::string parsing = "Error!  Invalid Parsing Values!\n";
  const std::vector<std::string> info = {"info.txt"};
  const std::vector<std::string> first = {"gps1.txt", "info.txt", "rsd1.txt", "xrs1.asc"};
  return {{"20 sites of 79",
           GridText(79),
           {"--design", "20"},
           "A design of this size needs 80 available survey sites, but there are only 79.\n",
           info},
          {"a second design of 12 sites of 50",
           GridText(50),
           {"--design", "12", "--design", "10"},
           "A design of this size needs 48 available survey sites, but there are only 38.\n",
           first},
          {"a selection for 20 sites of 79",
           GridText(79),
           {"--ads", "full", "--design", "18"},
           "A design of this size needs 80 available survey sites, but there are only 79.\n",
           info},
          {"a stratum of 399 sites", GridText(399), {"--design", "12,stratum=1"}, parsing, info},
          {"a third stratum of 400 sites", GridText(400), {"--design", "12,stratum=3"}, parsing, info},
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
          {"a reduction of 4999 sites",
           GridText(4999),
           {"--reduce", "50"},
           "A reduction by 50% needs a survey of at least 5000 sites that is not reduced already.\n",
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

INSTANTIATE_TEST_SUITE_P(Signals, StepRefusal, testing::ValuesIn(RefusedSignals()));
INSTANTIATE_TEST_SUITE_P(Designs, StepRefusal, testing::ValuesIn(RefusedDesigns()));

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
  const std::vector<std::string> four = {"--design", "12", "--design", "6", "--design", "6", "--design", "6"};
  VelnSession noted;
  const ProcessResult note = noted.Run(GridText(50), four);
  EXPECT_EQ(note.Status, 0);
  EXPECT_EQ(note.Err, "");
  EXPECT_NE(note.Out.find(words), std::string::npos);

  std::vector<std::string> five = four;
  five.insert(five.end(), {"--design", "5"});
  VelnSession session;
  const ProcessResult refused = session.Run(GridText(50), five);
  EXPECT_EQ(refused.Status, 1);
  EXPECT_EQ(refused.Err, words);
  EXPECT_THAT(session.Outputs(), testing::Contains("rsd4.txt"));
  EXPECT_THAT(session.Outputs(), testing::Not(testing::Contains("data.svy")));
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

TEST(UnwritableFile, OfADesignLeavesAllThreeUnwrittenAndOlderOnesInPlace)
{
  VelnSession session;
  WriteText(session.Output("xrs1.asc") / "kept", "");
  WriteText(session.Output("rsd1.txt"), "older");
  const ProcessResult result = session.Run(GridText(60), {"--json"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Err, session.Output("xrs1.asc").string() + "\ncould not be written: Is a directory\n");
  EXPECT_EQ(result.Out, "");
  EXPECT_EQ(ReadText(session.Output("rsd1.txt")), "older");
  EXPECT_THAT(session.Outputs(), ElementsAre("info.txt", "rsd1.txt", "xrs1.asc/", "xrs1.asc/kept"));
}

TEST(UnwritableFile, OfTheManualDesignOrTheExportIsRefused)
{
  const std::string reason = "\ncould not be written: Is a directory\n";
  VelnSession manual;
  WriteText(manual.Output("ugsd.txt") / "kept", "");
  EXPECT_EQ(manual.Run(GridText(60), {"--manual", "1"}).Err,
            "Warning: could not create output UGSD file...\n" + manual.Output("ugsd.txt").string() + reason);
  EXPECT_THAT(manual.Outputs(), ElementsAre("info.txt", "ugsd.txt/", "ugsd.txt/kept"));

  VelnSession exported;
  WriteText(exported.Output("data.svy") / "kept", "");
  const ProcessResult result = exported.Run(GridText(60), {"--json"});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Err, exported.Output("data.svy").string() + reason);
  EXPECT_EQ(result.Out, "");
}

}  // namespace
}  // namespace veln
