// Saving and export in the windows while one file operation fails. The fault shim is preloaded.

#include "desktop/design_windows.h"
#include "desktop/survey/frm_out_fd.h"
#include "faults/fault_steps.h"

#include <dlfcn.h>

namespace veln {
namespace {

class FaultyWindows : public DesignWindows {
 protected:
  void SetUp() override
  {
    DesignWindows::SetUp();
    arm_ = reinterpret_cast<void (*)(const char*, long)>(dlsym(RTLD_DEFAULT, "VelnFaultArm"));
    count_ = reinterpret_cast<long (*)()>(dlsym(RTLD_DEFAULT, "VelnFaultCount"));
    ASSERT_NE(arm_, nullptr) << "the shim is not preloaded";
  }

  /// Does a step in which operation `at` on the project's files fails; how many operations it came to.
  long WithFault(long at, const std::function<void()>& step) const
  {
    arm_(Project.c_str(), at);
    step();
    const long count = count_();
    arm_("", 0);
    return count;
  }

  void WriteOlder(const std::vector<std::string>& names) const
  {
    for (const std::string& name : names) {
      WriteText(Project / name, "older");
    }
  }

  void ExpectOlder(const std::vector<std::string>& names) const
  {
    EXPECT_EQ(ListFiles(Project), names);
    for (const std::string& name : names) {
      EXPECT_EQ(ReadText(Project / name), "older") << name;
    }
  }

  void (*arm_)(const char*, long) = nullptr;
  long (*count_)() = nullptr;
};

TEST_F(FaultyWindows, KeepADesignThatCouldNotBeSaved)
{
  const std::vector<std::string> names = {"ab12gps1.txt", "ab12rsd1.txt", "ab12xrs1.asc"};
  const auto save = [] { Click("frmSRS", "Command4"); };
  const auto makeDesign = [&] {
    Open(5, 100);
    Click("frmSRS", "Command2");
    WriteOlder(names);
    Asked.Said.clear();
  };
  makeDesign();
  const SurveyState finished = Shared.State;
  const long operations = WithFault(0, save);
  for (const long at : FaultSteps(operations, 1)) {
    SCOPED_TRACE("operation " + std::to_string(at));
    Shared.Find<frmSRS>()->Unload();
    Settle();
    makeDesign();
    WithFault(at, save);
    if (Shared.State.DesignCount == 0) {
      ExpectOlder(names);
      EXPECT_TRUE(Shared.State == finished);
      EXPECT_THAT(Asked.Said,
                  ElementsAre(AllOf(StartsWith("warn: " + Project.string()), HasSubstr("could not be "))));
      save();
    }
    EXPECT_EQ(Shared.State.DesignCount, 1);
    EXPECT_EQ(ListFiles(Project), names);
    EXPECT_NE(ReadText(Project / names[0]), "older");
  }
}

TEST_F(FaultyWindows, TellAnExportThatFailed)
{
  const std::vector<std::string> names = {"ab12data.svy"};
  Accept(5, 100);
  Shared.State.DesignCount = 1;
  const auto exportData = [] { HandTimers::Tick(*Window("frmOutFD"), 2); };
  Shared.Show<frmOutFD>();
  const long operations = WithFault(0, exportData);
  for (const long at : FaultSteps(operations, 3)) {
    SCOPED_TRACE("operation " + std::to_string(at));
    Click("frmOutFD", "Command2");
    WriteOlder(names);
    Shared.Show<frmOutFD>();
    WithFault(at, exportData);
    const bool written = ReadText(Project / names[0]) != "older";
    EXPECT_EQ(ListFiles(Project), names);
    EXPECT_EQ(Text("frmOutFD", "Label2"),
              written ? "ab12data.svy output signal data file created" : "ab12data.svy could not be written");
  }
}

}  // namespace
}  // namespace veln
