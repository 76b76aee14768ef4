#include "desktop/program/program.h"

#include "desktop/desktop_fixture.h"
#include "desktop/program/application.h"
#include "desktop/survey/frm_structure.h"
#include "support/process.h"
#include "support/surveys.h"
#include "toolkit/field_lock.h"

#include <csignal>
#include <new>
#include <thread>

namespace veln {
namespace {

TEST_F(DesktopTest, WhateverStopsAnActionIsToldAndLeavesTheRecord)
{
  const SurveyState before = Shared.State;
  const auto failing = [this](const auto& failure) {
    return [this, failure] {
      Shared.State.SurveySize = 7;
      throw failure;
    };
  };
  EXPECT_FALSE(Shared.Try(failing(std::bad_alloc())));
  EXPECT_FALSE(Shared.Try(failing(std::runtime_error("the reason"))));
  EXPECT_TRUE(Shared.State == before);
  EXPECT_THAT(Asked.Said, ElementsAre("warn: There is not enough memory for this.",
                                      "warn: This could not be done: the reason"));
}

TEST_F(DesktopTest, WhatLeavesTheHandlerOfAnEventIsToldThere)
{
  auto* application = dynamic_cast<Application*>(QCoreApplication::instance());
  ASSERT_NE(application, nullptr);
  application->Serve(&Shared);
  QTimer::singleShot(0, [] { throw std::runtime_error("the reason"); });
  Settle();
  application->Serve(nullptr);
  EXPECT_THAT(Asked.Said, ElementsAre("warn: This could not be done: the reason"));
}

TEST_F(MainWindowTest, AFieldBelongsToTheWindowThatHasIt)
{
  const FieldPlace place = {Directory / "data/demo", "demo", "ab12"};
  const auto typeCode = [this](const char* code) {
    Choose("mnuProject");
    Control<QListWidget>("frmProject", "List1").setCurrentRow(0);
    Type("frmProject", "Text3", code);
    Click("frmProject", "Command1");
  };
  std::optional<FileLock> other = TakeField(place, "veln", std::chrono::milliseconds(0));
  typeCode("ab12");
  EXPECT_THAT(Asked.Said,
              ElementsAre(StartsWith("warn: Field ab12 of project demo is in use by veln, process ")));
  EXPECT_NE(Window("frmProject"), nullptr);
  EXPECT_EQ(Text("frmProject", "Text3"), "ab12");
  other.reset();
  Click("frmProject", "Command1");
  EXPECT_EQ(Window("frmProject"), nullptr);
  EXPECT_TRUE(exists(FieldLockFile(place)));
  typeCode("ab12");
  EXPECT_TRUE(Shared.Field) << "its own field is not in another's hands";
  typeCode("cd34");
  EXPECT_THAT(ListFiles(place.Folder), ElementsAre(".cd34.lock"));
}

TEST_F(MainWindowTest, CharactersThatNoFileCanCarryAreDropped)
{
  Set(NamedState());
  Shared.Show<frmStructure>();
  Type("frmStructure", "Text1", "a\"b");
  EXPECT_EQ(Text("frmStructure", "Text1"), "ab");
  EXPECT_THAT(Asked.Said, ElementsAre("beep"));
  Shared.Find<frmStructure>()->Unload();
  Set(SurveyState());
  Choose("mnuProject");
  Control<QLineEdit>("frmProject", "Text2").setText("\"one\"\a two\u0085");
  EXPECT_EQ(Text("frmProject", "Text2"), "\"one\" two");
}

/// The desktop program as it was built, in a directory of its own.
class DesktopProgram : public testing::Test {
 protected:
  pid_t Start(const char* platform, const char* display) const
  {
    return StartProcess(VELN_DESKTOP_PROGRAM, {}, Directory.Path(), [&] {
      for (const auto& [name, value] :
           {std::pair{"QT_QPA_PLATFORM", platform}, std::pair{"DISPLAY", display}}) {
        value == nullptr ? unsetenv(name) : setenv(name, value, 1);
      }
      unsetenv("WAYLAND_DISPLAY");
      setenv("HOME", Printed.Path().c_str(), 1);
      setenv("XDG_CONFIG_HOME", Printed.Path().c_str(), 1);
      process_detail::SendTo(Errors, STDERR_FILENO);
    });
  }

  const TemporaryDirectory Directory;
  const TemporaryDirectory Printed;
  const std::filesystem::path Errors = Printed / "errors";
};

TEST_F(DesktopProgram, SaysInASentenceThatItNeedsADisplay)
{
  for (const char* display : {static_cast<const char*>(nullptr), "", ":4711"}) {
    EXPECT_EQ(process_detail::WaitFor(Start(nullptr, display)), 1);
    EXPECT_EQ(ReadText(Errors),
              "VELN-QTRD needs a display, and none can be reached: see the variable DISPLAY.\n");
  }
}

TEST_F(DesktopProgram, EndsBySignalsWithoutAQuestion)
{
  WriteText(Directory / "VELN_te_fio_info.dat", "1\n write\n3\n /x\n5\n2\n");
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const pid_t program = Start("offscreen", "");
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    EXPECT_EQ(waitpid(program, nullptr, WNOHANG), 0) << "it runs";
    kill(program, signal);
    EXPECT_EQ(process_detail::WaitFor(program), 128 + signal);
    EXPECT_THAT(ListFiles(Directory.Path()), ElementsAre("VELN_te_fio_info.dat"));
  }
}

}  // namespace
}  // namespace veln
