#include "cli/veln_session.h"

namespace veln {
namespace {

using Arguments = std::vector<std::string>;

/// An option with values that are wrong whatever the survey.
struct WrongValues {
  const char* Option;
  std::vector<std::string> Values;
};

/// What is wrong whatever the survey, behind "veln run survey.txt".
std::vector<Arguments> WrongOptions()
{
  const std::vector<WrongValues> table = {
      {"--plot",
       {"grid", "grid=", "chart=a.svg", "s2-y=a.svg", "map-ta=a.svg", "line-s1:1=a.svg", "sites:7=a.svg"}},
      {"--palette", {"5"}},
      {"--symbol-size", {"0"}},
      {"--decimals", {"2.5"}},
      {"--direction", {"nw"}},
      {"--type", {"lattice"}},
      {"--units", {"S/m"}},
      {"--convert-units", {"mS/m"}},
      {"--translate", {"rotate=181", "rotate=1.5", ""}},
      {"--masking-level", {"2.99", "3.505", "nan"}},
      {"--outlier-level", {"6.01"}},
      {"--delete-outliers", {"-1", "some"}},
      {"--edge-buffer", {"ends"}},
      {"--reduce", {"40"}},
      {"--ads", {"half", "full,"}},
      {"--design",
       {"7", "[12,6]", "12,", "12,d=0.79", "12,d=1.21", "12,d=1.005", "12,stratum=0", "12,stratum=10"}},
      {"--manual", {"", "1,,2", "-3"}},
      {"--field", {"abc", "abcde", "ab_1", "abc\xc3\xa4"}},
      {"--project", {"", "..", "two words", "a/b", "one\ntwo"}},
      {"--label1", {Repeated("\xc3\xa4", 11), "EM\xff", "EM\nv", "a\"b", "a\tb"}},
      {"--label2", {"12345678901", "\""}},
      {"--description", {Repeated("d", 61), "one\rtwo", "a\x7f", "\xc2\x85"}},
      {"--root", {"one\ntwo"}}};
  std::vector<Arguments> wrong = {
      {"--bogus"},
      {"second.txt"},
      {"--root"},
      {"--json=maybe"},
      {"--masking-level="},
      {"--transition"},
      {"--field", "abcd", "--field", "efgh"},
      {"--units", "dS/m", "--convert-units", "dS/m"},
      {"--plot", "grid=a.svg", "--plot", "rsd=./a.svg"},
      {"--type", "transect", "--plot", "line-s1:-1=a.svg"},
      {"--type", "transect", "--transition-file"},
      {"--type", "transect", "--edge-buffer", "both"},
      {"--type", "transect", "--ads", "full,ignore-ta"},
      {"--type", "transect", "--design", "12,ignore-ta"},
      {"--design", "6", "--design", "6", "--design", "6", "--design", "6", "--design", "6", "--design", "6"}};
  for (const WrongValues& row : table) {
    for (const std::string& value : row.Values) {
      wrong.push_back({row.Option, value});
    }
  }
  return wrong;
}

TEST(CommandLine, ThatIsWrongEndsWithTwoAndMakesNothing)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(60));
  for (const Arguments& options : WrongOptions()) {
    Arguments arguments = {"run", "survey.txt"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const ProcessResult result = session.Veln(arguments);
    SCOPED_TRACE(testing::PrintToString(options));
    EXPECT_EQ(result.Status, 2);
    EXPECT_EQ(result.Out, "");
    EXPECT_NE(result.Err, "");
    EXPECT_THAT(ListFiles(session.Root()), ElementsAre("survey.txt"));
  }
}

TEST(CommandLine, NeedsASubcommandAndASurveyFile)
{
  VelnSession session;
  for (const Arguments& arguments :
       {Arguments{}, {"run"}, {"walk"}, {"survey.txt"}, {"run", "--label1=", "--quiet"}}) {
    EXPECT_EQ(session.Veln(arguments).Status, 2) << testing::PrintToString(arguments);
  }
  EXPECT_EQ(session.Veln({"run", "a\nb.txt"}).Err, "SURVEY_FILE: a line break can not stand in it.\n");
  EXPECT_THAT(ListFiles(session.Root()), ElementsAre());
}

TEST(CommandLine, IsRefusedBeforeTheSurveyIsLookedFor)
{
  VelnSession session;
  const ProcessResult result = session.Veln({"run", "nowhere.txt", "--masking-level", "4.51"});
  EXPECT_EQ(result.Status, 2);
  EXPECT_EQ(result.Err, "--masking-level: the masking level can not be higher than the outlier level.\n");
}

TEST(CommandLine, ExplainsItselfOnStandardOutput)
{
  VelnSession session;
  for (const auto& [arguments, text] :
       std::vector<std::pair<Arguments, std::string>>{{{"--help"}, "Usage: veln [OPTIONS] SUBCOMMAND"},
                                                      {{"run", "--help"}, "Usage: veln run [OPTIONS]"},
                                                      {{"run", "--help"}, "--transition-file"},
                                                      {{"--version"}, "veln 2.35R\n"}}) {
    const ProcessResult result = session.Veln(arguments);
    EXPECT_EQ(result.Status, 0);
    EXPECT_THAT(result.Out, HasSubstr(text));
    EXPECT_EQ(result.Err, "");
  }
}

TEST(OptionValue, IsTakenAsItStands)
{
  const std::string sixty = Repeated("\xc3\xa9", 60);
  for (const auto& [options, description] :
       std::vector<std::pair<Arguments, std::string>>{{{"--description", "[a,b]"}, "[a,b]"},
                                                      {{"--description", "--root="}, "--root="},
                                                      {{"--description=-a=b "}, "-a=b "},
                                                      {{"--description=", "--quiet"}, ""},
                                                      {{"--description", sixty}, sixty}}) {
    VelnSession session;
    const ProcessResult result = session.Run(GridText(60), options);
    ASSERT_EQ(result.Status, 0) << result.Err;
    EXPECT_EQ(SplitLines(ReadText(session.Output("info.txt"))).at(7), "Field Desc:   " + description);
  }
}

TEST(OptionValue, AtTheEndsOfItsRangePasses)
{
  VelnSession session;
  const ProcessResult result =
      session.Run(GridText(400), {"--masking-level", "3", "--outlier-level", "6.00",
                                  "--translate=rotate=-180", "--design=12,d=0.8", "--design",
                                  "5,stratum=2,d=1.20", "--label1", Repeated("\xc3\xa4", 10), "--label2", "",
                                  "--field", "09zZ", "--project", "._", "--delete-outliers", "99999999999"});
  EXPECT_EQ(result.Status, 0) << result.Err;
  EXPECT_THAT(ListFiles(session.Root() / "data/._"), Contains("09zZrsd2.txt"));
}

TEST(FieldInUse, IsAskedBeforeTheSurveyIsRead)
{
  VelnSession session;
  WriteText(session.Output("tstd.std"), "");
  EXPECT_EQ(session.Run(GridText(60)).Status, 0) << "only the information file tells of a field in use";
  const ProcessResult inUse = session.Veln({"run", "nowhere.txt", "--json"});
  EXPECT_EQ(inUse.Status, 3);
  EXPECT_EQ(inUse.Out, "");
  EXPECT_EQ(inUse.Err,
            "Warning!  The 4-character Field ID code you have specified is already in use\n"
            "in the current data Project.  If you keep this code, you will automatically\n"
            "overwrite one or more existing VELN-QTRD output data and/or text files.\n"
            "\n"
            "Are you sure that you want to still use this code and overwrite these files?\n");
  const ProcessResult overwritten = session.Run(GridText(60), {"--overwrite", "--quiet"});
  EXPECT_EQ(overwritten.Status, 0);
  EXPECT_EQ(overwritten.Out + overwritten.Err, "");
}

}  // namespace
}  // namespace veln
