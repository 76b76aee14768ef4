#include "cli/veln_session.h"
#include "logger/logger_files.h"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <sys/stat.h>

namespace veln {
namespace {

using Arguments = std::vector<std::string>;

/// A session with a logger's file in it, whose configuration folder is its own.
class ConvertSession : public VelnSession {
 public:
  ConvertSession()
  {
    WriteText(Root() / "f.dat", LoggerText(4, 60));
    setenv("XDG_CONFIG_HOME", (Root() / "config").c_str(), 1);
  }
  ConvertSession(const ConvertSession&) = delete;
  ConvertSession& operator=(const ConvertSession&) = delete;
  ~ConvertSession() { unsetenv("XDG_CONFIG_HOME"); }

  ProcessResult Convert(Arguments options)
  {
    options.insert(options.begin(), {"convert", "f.dat"});
    return Veln(options);
  }
};

TEST(Convert, MakesASurveyThatRunTakesAsItStands)
{
  ConvertSession session;
  const ProcessResult converted = session.Convert({"-o", "s.txt"});
  EXPECT_EQ(converted.Status, 0) << converted.Err;
  EXPECT_THAT(converted.Out, HasSubstr("\nRows          4 rows, holding "));
  EXPECT_THAT(ListFiles(session.Root()), ElementsAre("f.dat", "s.sources.csv", "s.survey.json", "s.txt"));
  const ProcessResult run = session.Veln({"run", "s.txt", "--json"});
  EXPECT_EQ(run.Status, 0) << run.Err;
  const auto document = nlohmann::json::parse(run.Out);
  EXPECT_EQ(document["import"]["type"], "Transect");
  EXPECT_EQ(document["signals"][1]["label"], "Cond.2");
  EXPECT_EQ(document["advice"], nlohmann::json::array());
}

TEST(Convert, ShowWritesNothingAndSaysTheSame)
{
  ConvertSession session;
  const ProcessResult shown = session.Convert({"--show"});
  EXPECT_EQ(shown.Status, 0);
  EXPECT_THAT(ListFiles(session.Root()), ElementsAre("f.dat"));
  EXPECT_THAT(session.Convert({"-o", "s.txt"}).Out, StartsWith(shown.Out));
  EXPECT_EQ(session.Convert({"--show", "--s1", "nope"}).Status, 1);
}

TEST(Convert, WhatIsWrongOnTheCommandLineEndsWithTwo)
{
  ConvertSession session;
  WriteText(session.Root() / "in.sources.csv", "x\n");
  WriteText(session.Root() / "b.json", "{}\n");
  ASSERT_EQ(mkfifo((session.Root() / "pipe").c_str(), 0600), 0);
  const auto before = ListFiles(session.Root());
  for (const Arguments& options :
       std::vector<Arguments>{{},
                              {"-o", "-"},
                              {"-o", ""},
                              {"-o", "."},
                              {"-o", "pipe"},
                              {"-o", "a.survey.json"},
                              {"-o", "a.sources.csv"},
                              {"-o", "f.dat"},
                              {"-o", "./f.dat"},
                              {"-o", "s.txt", "in.sources.csv", "--dropped", "in.sources.csv"},
                              {"-o", "in.txt", "in.sources.csv"},
                              {"-o", "b.json", "--boundary", "b.json"},
                              {"-o", "s.txt", "--dropped", "s.survey.json"},
                              {"-o", "s.txt", "pipe", "--dropped", "d.csv"},
                              {"-o", "s.txt", "--profile", "a/b"},
                              {"-o", "s.txt", "--save-profile", ".x"},
                              {"-o", "s.txt", "--median", "4"},
                              {"-o", "s.txt", "--bogus"},
                              {"-o", "s.txt", "--x", "1", "--lat", "2"},
                              {"-o", "s.txt", "f.dat"}}) {
    const ProcessResult result = session.Convert(options);
    EXPECT_EQ(result.Status, 2) << testing::PrintToString(options) << result.Err;
    EXPECT_EQ(result.Out, "");
    EXPECT_EQ(ListFiles(session.Root()), before);
  }
}

TEST(Convert, ARefusalLeavesOlderOutputAsItWas)
{
  ConvertSession session;
  for (const char* name : {"s.txt", "s.survey.json", "s.sources.csv"}) {
    WriteText(session.Root() / name, "older\n");
  }
  for (const Arguments& options : std::vector<Arguments>{{"--s1", "nope"},
                                                         {"--boundary", "nowhere.json"},
                                                         {"--row-min", "1000", "--thin", "100"},
                                                         {"--lag", "500"},
                                                         {"nowhere.dat"},
                                                         {"--profile", "nobody"},
                                                         {"--crs", "utm:1N"}}) {
    Arguments all = {"-o", "s.txt"};
    all.insert(all.end(), options.begin(), options.end());
    const ProcessResult result = session.Convert(all);
    EXPECT_EQ(result.Status, 1) << testing::PrintToString(options) << result.Err;
    EXPECT_NE(result.Err, "");
    EXPECT_EQ(ReadText(session.Root() / "s.txt") + ReadText(session.Root() / "s.survey.json") +
                  ReadText(session.Root() / "s.sources.csv"),
              "older\nolder\nolder\n");
  }
}

TEST(Convert, AProfileKeepsTheChoicesForTheNextFile)
{
  ConvertSession session;
  const Arguments choices = {"--s1", "Cond.2", "--rows", "none", "--still", "0.5", "--thin", "2"};
  Arguments saving = choices;
  saving.insert(saving.end(), {"-o", "a.txt", "--save-profile", "mine"});
  EXPECT_EQ(session.Convert(saving).Status, 0);
  EXPECT_EQ(session.Convert({"-o", "b.txt", "--profile", "mine", "--thin", "2"}).Status, 0);
  EXPECT_EQ(ReadText(session.Root() / "a.txt"), ReadText(session.Root() / "b.txt"));
  WriteText(session.Root() / "g.csv", "lat,lon,cond\n1.5,2.5,3\n");
  const ProcessResult other = session.Veln({"convert", "g.csv", "--show", "--profile", "mine"});
  EXPECT_EQ(other.Status, 1);
  EXPECT_THAT(other.Err, StartsWith("g.csv: profile \"mine\", --s1 \"Cond.2\" is no column of it."));
  WriteText(session.Root() / "config/veln/loggers/mine.json",
            "{\"schema\": 1, \"options\": {\"thin\": \"-1\"}}");
  EXPECT_THAT(session.Convert({"--show", "--profile", "mine"}).Err, StartsWith("Profile \"mine\""));
}

TEST(Convert, DroppedRecordsComeWithTheSurvey)
{
  ConvertSession session;
  EXPECT_EQ(session.Convert({"-o", "s.txt", "--dropped", "d.csv", "--quiet"}).Out, "");
  EXPECT_THAT(ReadText(session.Root() / "d.csv"), HasSubstr("turn,52"));
}

/// A run of the converted survey, as JSON.
nlohmann::json RunOf(ConvertSession& session, Arguments options)
{
  options.insert(options.begin(), {"run", "s.txt", "--json", "--overwrite"});
  const ProcessResult result = session.Veln(options);
  EXPECT_EQ(result.Status, 0) << result.Err;
  return nlohmann::json::parse(result.Out);
}

TEST(Sidecar, OptionsHoldOrContradict)
{
  ConvertSession session;
  session.Convert({"-o", "s.txt"});
  for (const Arguments& options : std::vector<Arguments>{{"--type", "grid"}, {"--site-id"}}) {
    Arguments arguments = {"run", "s.txt"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const ProcessResult result = session.Veln(arguments);
    EXPECT_EQ(result.Status, 2);
    EXPECT_THAT(result.Err, HasSubstr("--no-sidecar"));
  }
  EXPECT_EQ(session.Veln({"run", "s.txt", "--type", "lattice"}).Status, 2);
  EXPECT_EQ(session.Veln({"run", "s.txt", "--convert-units", "mS/m"}).Status, 2);
  const auto told = RunOf(session, {"--label1", "deep", "--edge-buffer", "ends"});
  EXPECT_EQ(told["signals"][0]["label"], "deep");
  ASSERT_EQ(told["advice"].size(), 1);
  EXPECT_EQ(told["advice"][0]["code"], "sidecar-differs");
  const auto alone = RunOf(session, {"--no-sidecar", "--type", "transect", "--s2"});
  EXPECT_EQ(alone["signals"][0]["label"], "EMv");
}

TEST(Sidecar, OneThatDoesNotBelongIsLeftAside)
{
  ConvertSession session;
  session.Convert({"-o", "s.txt"});
  const std::string sidecar = ReadText(session.Root() / "s.survey.json");
  const Arguments layout = {"--type", "transect", "--s2"};
  WriteText(session.Root() / "s.survey.json", sidecar.substr(0, 200));
  EXPECT_EQ(RunOf(session, layout)["advice"][0]["code"], "sidecar-damaged");
  WriteText(session.Root() / "s.survey.json", sidecar);
  std::string survey = ReadText(session.Root() / "s.txt");
  survey.pop_back();  // the last line needs no end
  WriteText(session.Root() / "s.txt", survey);
  EXPECT_EQ(RunOf(session, layout)["advice"][0]["code"], "sidecar-other-survey");
  const ProcessResult text = session.Veln({"run", "s.txt", "--overwrite", "--type", "transect", "--s2"});
  EXPECT_THAT(text.Out, HasSubstr("\nAdvice        s.survey.json tells of another survey"));
}

}  // namespace
}  // namespace veln
