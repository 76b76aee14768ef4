#include "desktop/survey/frm_out_fd.h"

#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

namespace veln {
namespace {

/// The export window over a survey of 80 sites with one design.
class FrmOutFD : public DesktopTest {
 protected:
  void SetUp() override
  {
    Set(AcceptedSurvey(GridSurvey(10, 8)));
    Shared.State.DesignCount = 1;
    std::filesystem::create_directories(Project());
    Shared.Show<frmOutFD>();
  }

  [[nodiscard]] std::filesystem::path Project() const { return Directory / "data" / "farm"; }

  /// Waits for the second tick.
  static bool Exported()
  {
    return QTest::qWaitFor([] { return Shown("frmOutFD", "Frame1"); });
  }
};

TEST_F(FrmOutFD, WritesTheFileByItselfAndAsksThen)
{
  EXPECT_EQ(Window("frmOutFD")->windowTitle(), "Data File Export");
  for (const char* hidden : {"Label1", "Label2", "Frame1", "Command1"}) {
    EXPECT_FALSE(Shown("frmOutFD", hidden)) << hidden;
  }
  QTest::keyClick(Window("frmOutFD"), Qt::Key_Return);
  EXPECT_NE(Window("frmOutFD"), nullptr) << "a hidden button is no default";
  ASSERT_TRUE(Exported());
  EXPECT_EQ(Text("frmOutFD", "Label2"), "ab12data.svy output signal data file created");
  EXPECT_EQ(Text("frmOutFD", "Label1"), " 80 lines were successfully exported");
  EXPECT_THAT(ReadText(Project() / "ab12data.svy"), StartsWith("80,4,\"G\",\"none\""));
  Click("frmOutFD", "Command1");
  EXPECT_EQ(Ended, 1);
  EXPECT_EQ(Window("frmOutFD"), nullptr);
}

TEST_F(FrmOutFD, NoLeavesAndTheNextOpeningWritesAfresh)
{
  ASSERT_TRUE(Exported());
  Click("frmOutFD", "Command2");
  EXPECT_EQ(Window("frmOutFD"), nullptr);
  EXPECT_EQ(Ended, 0);
  WriteText(Project() / "ab12data.svy", "old");
  Shared.Show<frmOutFD>();
  ASSERT_TRUE(Exported());
  EXPECT_THAT(ReadText(Project() / "ab12data.svy"), StartsWith("80,4"));
  EXPECT_THAT(ListFiles(Project()), ElementsAre("ab12data.svy"));
}

TEST_F(FrmOutFD, EscBeforeTheTimerIsNoAndWritesNothing)
{
  QTest::keyClick(Window("frmOutFD"), Qt::Key_Escape);
  EXPECT_EQ(Window("frmOutFD"), nullptr);
  constexpr int LongAfter = 350;
  QTest::qWait(LongAfter);
  EXPECT_THAT(ListFiles(Project()), ElementsAre());
  EXPECT_EQ(Ended, 0);
}

TEST_F(FrmOutFD, AFailureTellsItsReasonAndLetsTheUserLeaveOrStay)
{
  std::filesystem::create_directories(Project() / "ab12data.svy" / "in the way");
  ASSERT_TRUE(Exported());
  EXPECT_EQ(Text("frmOutFD", "Label1"), " 0 lines were successfully exported");
  EXPECT_EQ(Text("frmOutFD", "Label2"), "ab12data.svy could not be written");
  EXPECT_THAT(Asked.Said, ElementsAre(HasSubstr("warn: ")));
}

}  // namespace
}  // namespace veln
