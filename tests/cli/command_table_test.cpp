#include "cli/veln_session.h"

#include <nlohmann/json.hpp>

namespace veln {
namespace {

namespace fs = std::filesystem;

/// "grid SITES [FURTHER COLUMNS]", "transect ROWS SITES", "text HEAD SITES" for a grid behind a head line, or
/// a file beside the table.
std::string SurveyText(const std::string& description)
{
  const std::vector<std::string> words = WordsOf(description);
  if (words[0] == "grid") {
    return GridText(std::stoi(words[1]), words.size() > 2 ? words[2] : "");
  }
  if (words[0] == "transect") {
    const RawSurvey survey = TransectSurvey(std::stoi(words[1]), std::stoi(words[2]), 2, 7);
    return RawFileText(survey, LayoutOf(survey));
  }
  return words[0] == "head" ? words[1] + "\n" + GridText(std::stoi(words[2]))
                            : ReadText(fs::path(VELN_TEST_DATA) / words[0]);
}

/// The names of what lies in the session's directory, without the survey and folders that hold something;
/// those of the default project and field without its folder and "FLD1".
std::string Made(const VelnSession& session)
{
  std::string names;
  for (const std::string& name : ListFiles(session.Root())) {
    if (name.ends_with('/') || name == "survey.txt") {
      continue;
    }
    const std::string own = "data/demo/FLD1";
    names += (names.empty() ? "" : " ") + (name.starts_with(own) ? name.substr(own.size()) : name);
  }
  return names;
}

/// A file of the session, or an output of the default project and field.
fs::path Found(const VelnSession& session, const std::string& name)
{
  return exists(session.Root() / name) ? session.Root() / name : session.Output(name);
}

TEST(CommandLine, ThatIsWrongTellsWhyEndsWithTwoAndMakesNothing)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(60));
  for (const TableCase& refused : ReadTable(fs::path(VELN_TEST_DATA) / "usage.txt")) {
    SCOPED_TRACE(refused.Place);
    std::vector<std::string> words = WordsOf(refused.Head);
    if (words[0] == "$") {
      words[0] = "survey.txt";
      words.insert(words.begin(), "run");
    } else {
      words.erase(words.begin());
    }
    const ProcessResult result = session.Veln(words);
    EXPECT_EQ(result.Status, 2);
    EXPECT_EQ(result.Out, "");
    EXPECT_EQ(SplitLines(SteadyText(result.Err, session.Root())), refused.Lines);
    EXPECT_EQ(Made(session), "");
  }
}

/// What a run of the table printed and left, line by line against what the table says.
class RunCheck {
 public:
  explicit RunCheck(const TableCase& run)
  {
    std::string survey = "grid 60";
    for (const std::string& line : run.Lines) {
      const std::string key = line.substr(0, line.find(' '));
      const std::string text = line.size() > key.size() ? line.substr(key.size() + 1) : "";
      if (key == "survey") {
        survey = text;
      } else if (key == "present") {
        WriteText(session_.Root() / text, "");
      } else if (key == "err") {
        expected_.Err += text + "\n";
      } else if (key == "out") {
        out_ = out_.value_or("") + (line == "out" ? "" : text + "\n");
      } else if (key == "status") {
        expected_.Status = std::stoi(text);
      } else {
        checks_.emplace_back(key, text);
      }
    }
    std::vector<std::string> options = WordsOf(run.Head);
    options.erase(options.begin());
    result_ = session_.Run(SurveyText(survey), options);
  }

  void Compare()
  {
    EXPECT_EQ(result_.Status, std::max(expected_.Status, 0));
    EXPECT_EQ(SteadyText(result_.Err, session_.Root()), expected_.Err);
    if (out_) {
      EXPECT_EQ(SteadyText(result_.Out, session_.Root()), *out_);
    }
    for (const auto& [key, text] : checks_) {
      SCOPED_TRACE(key + " " + text);
      Compare(key, text);
    }
  }

 private:
  void Compare(const std::string& key, const std::string& text)
  {
    const std::string first = text.substr(0, text.find(' '));
    const std::string rest = text.size() > first.size() ? text.substr(first.size() + 1) : "";
    if (key == "files") {
      EXPECT_EQ(Made(session_), text);
    } else if (key == "prints") {
      EXPECT_THAT(result_.Out, HasSubstr(text));
    } else if (key == "json") {
      using Json = nlohmann::ordered_json;
      EXPECT_EQ(Json::parse(SteadyText(result_.Out, session_.Root())).at(Json::json_pointer(first)).dump(),
                rest);
    } else if (key == "holds") {
      EXPECT_THAT(ReadText(Found(session_, first)), HasSubstr(rest));
    } else if (key == "lacks") {
      EXPECT_THAT(ReadText(Found(session_, first)), Not(HasSubstr(rest)));
    } else {
      ADD_FAILURE() << "unknown key";
    }
  }

  VelnSession session_;
  ProcessResult expected_;
  ProcessResult result_;
  std::optional<std::string> out_;
  std::vector<std::pair<std::string, std::string>> checks_;
};

TEST(Run, PrintsAndLeavesWhatItsTableSays)
{
  for (const TableCase& run : ReadTable(fs::path(VELN_TEST_DATA) / "runs.txt")) {
    SCOPED_TRACE(run.Place);
    RunCheck(run).Compare();
  }
}

}  // namespace
}  // namespace veln
