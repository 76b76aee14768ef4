// Whole runs of veln in which one file operation fails, is cut short, or is the process's last.

#include "cli/veln_session.h"
#include "faults/fault_steps.h"

#include <set>

namespace veln {
namespace {

struct Fault {
  const char* Kind;
  bool OlderProject;
};

void PrintTo(const Fault& fault, std::ostream* out)
{
  *out << fault.Kind << (fault.OlderProject ? " over an older project" : " in a fresh one");
}

std::string Survey(std::uint64_t seed)
{
  const RawSurvey survey = TransectSurvey(6, 16, 2, seed);
  return RawFileText(survey, LayoutOf(survey));
}

class FaultyRuns : public testing::TestWithParam<Fault> {
 protected:
  using Contents = std::map<std::string, std::string>;

  ProcessResult Run(const std::string& survey, bool overwrite, const std::vector<std::string>& faults = {})
  {
    WriteText(Root() / "survey.txt", survey);
    std::vector<std::string> words = {
        "run",          "survey.txt",        "--type",   "transect",     "--s2",
        "--transition", "--transition-file", "--manual", "3,77",         "--quiet",
        "--plot",       "map-s1=map.svg",    "--plot",   "grid=grid.svg"};
    for (int i = 0; i < MaxDesigns; ++i) {
      words.insert(words.end(), {"--design", "6"});
    }
    if (overwrite) {
      words.emplace_back("--overwrite");
    }
    words.insert(words.begin(), faults.begin(), faults.end());
    words.insert(words.begin() + static_cast<std::ptrdiff_t>(faults.size()), VELN_PROGRAM);
    words.insert(words.begin(), {"VELN_FAULT_FOLDER=" + Root().string(), "LD_PRELOAD=" VELN_FAULT_SHIM,
                                 "ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0"});
    return RunProcess("/usr/bin/env", words, Root());
  }

  ProcessResult RunWithFault(long at)
  {
    return Run(Survey(2), true,
               {"VELN_FAULT_AT=" + std::to_string(at), std::string("VELN_FAULT_KIND=") + GetParam().Kind});
  }

  [[nodiscard]] std::filesystem::path Root() const { return session_.Root(); }

  /// Outputs by their paths, without what differs from run to run.
  [[nodiscard]] Contents Outputs() const
  {
    Contents outputs;
    for (const std::string& name : ListFiles(Root())) {
      if (name != "survey.txt" && !name.ends_with("/")) {
        outputs[name] = SteadyText(ReadText(Root() / name), "\n");
      }
    }
    return outputs;
  }

  void Clear() const
  {
    std::filesystem::remove_all(Root() / "data");
    for (const char* picture : {"map.svg", "grid.svg"}) {
      std::filesystem::remove(Root() / picture);
    }
  }

  void ExpectWholeFilesAndSets(const Contents& outputs) const
  {
    for (const auto& [name, content] : outputs) {
      EXPECT_TRUE(content == older_.at(name) || content == newer_.at(name))
          << name << " is neither old nor new";
    }
    for (int number = 1; number <= MaxDesigns; ++number) {
      const std::string digit = std::to_string(number);
      std::set<std::string> generations;
      for (const std::string& suffix :
           {"rsd" + digit + ".txt", "gps" + digit + ".txt", "xrs" + digit + ".asc"}) {
        const std::string name = "data/demo/FLD1" + suffix;
        const auto found = outputs.find(name);
        generations.insert(found == outputs.end()             ? "absent"
                           : found->second == newer_.at(name) ? "new"
                                                              : "old");
      }
      EXPECT_EQ(generations.size(), 1U)
          << "design " << number << " is mixed: " << testing::PrintToString(generations);
    }
  }

  static std::vector<std::string> Hidden(const Contents& outputs, const std::string& folder = "")
  {
    std::vector<std::string> hidden;
    for (const auto& [name, content] : outputs) {
      if (name.starts_with(folder + ".") || name.find("/.") != std::string::npos) {
        hidden.push_back(name);
      }
    }
    return hidden;
  }

  void ExpectToldAndTidy(const ProcessResult& result)
  {
    const Contents outputs = Outputs();
    EXPECT_THAT(Hidden(outputs), IsEmpty());
    ExpectWholeFilesAndSets(outputs);
    if (result.Status == 0) {
      EXPECT_EQ(outputs, newer_);
      EXPECT_EQ(result.Err, "");
    } else {
      EXPECT_EQ(result.Status, 1);
      EXPECT_THAT(result.Err, testing::AnyOf(HasSubstr("could not be "), HasSubstr("could not create")));
      EXPECT_THAT(result.Err, Not(HasSubstr(".new")));
    }
  }

  void ExpectTheNextRunsTidyUp()
  {
    const ProcessResult next = Run(Survey(2), false);
    EXPECT_THAT(next.Status, testing::AnyOf(0, 3)) << next.Err;
    Contents outputs = Outputs();
    EXPECT_THAT(Hidden(outputs, "data/demo/"), IsEmpty());
    std::erase_if(outputs, [](const auto& output) { return output.first.starts_with("."); });
    ExpectWholeFilesAndSets(outputs);
    EXPECT_EQ(Run(Survey(2), true).Status, 0);
    EXPECT_EQ(Outputs(), newer_);
  }

  VelnSession session_;
  Contents older_, newer_;
};

TEST_P(FaultyRuns, LeaveWholeFilesWholeSetsAndNothingElse)
{
  const bool killed = std::string(GetParam().Kind) == "kill";
  ASSERT_EQ(Run(Survey(1), true).Status, 0);
  older_ = Outputs();
  Clear();
  ASSERT_EQ(Run(Survey(2), true).Status, 0);
  newer_ = Outputs();
  ASSERT_EQ(older_.size(), newer_.size());
  int met = 0;
  const auto attempt = [&](long at) {
    SCOPED_TRACE("operation " + std::to_string(at));
    Clear();
    if (GetParam().OlderProject) {
      for (const auto& [name, content] : older_) {
        WriteText(Root() / name, content);
      }
    }
    const ProcessResult result = RunWithFault(at);
    met += result.Status != 0 ? 1 : 0;
    if (killed && result.Status != 0) {
      EXPECT_EQ(result.Status, 128 + SIGKILL);
      ExpectTheNextRunsTidyUp();
    } else {
      ExpectToldAndTidy(result);
    }
  };
  const std::filesystem::path count = Root().string() + ".count";
  Clear();
  Run(Survey(2), true, {"VELN_FAULT_COUNT=" + count.string()});
  const long operations = std::stol(ReadText(count));
  std::filesystem::remove(count);
  ASSERT_GT(operations, 100);
  for (const long at : FaultSteps(operations, GetParam().OlderProject ? 1 : 2)) {
    attempt(at);
  }
  EXPECT_EQ(met > 0, std::string(GetParam().Kind) != "short") << "what is cut short is written on";
}

INSTANTIATE_TEST_SUITE_P(Every, FaultyRuns,
                         testing::Values(Fault{"fail", false}, Fault{"fail", true}, Fault{"short", true},
                                         Fault{"kill", false}, Fault{"kill", true}));

}  // namespace
}  // namespace veln
