#include "desktop/workspace/frm_file_io.h"

#include "desktop/desktop_fixture.h"

#include <QListWidget>
#include <QRadioButton>
#include <gmock/gmock.h>

namespace veln {
namespace {

constexpr const char* Restored =
    "inform: The previous default Text Editor and Input file path information has been restored.";

class FrmFileIO : public DesktopTest {
 protected:
  void SetUp() override
  {
    std::filesystem::create_directories(Directory / "data" / "raw");
    Shared.Show<frmFileIO>();
  }

  void Reopen()
  {
    if (auto* open = Shared.Find<frmFileIO>()) {
      open->Unload();
    }
    Settle();
    Shared.Show<frmFileIO>();
  }

  static QListWidget& Directories() { return Control<QListWidget>("frmFileIO", "Dir1"); }

  /// Opens an entry of `Dir1` by Enter.
  static void Enter(const char* entry)
  {
    Directories().setCurrentItem(Directories().findItems(entry, Qt::MatchExactly).at(0));
    QTest::keyClick(&Directories(), Qt::Key_Return);
    Settle();
  }

  static QColor ColourOf(const char* name)
  {
    return Control("frmFileIO", name).palette().color(QPalette::Active, QPalette::WindowText);
  }
};

TEST_F(FrmFileIO, BrowsedEditorStandsBehindOneBlank)
{
  Asked.ChooseFile("/usr/bin/nano");
  Click("frmFileIO", "cmdBrowse");
  EXPECT_EQ(Text("frmFileIO", "txtEditor"), " /usr/bin/nano");
  EXPECT_EQ(Shared.State.TextEditorPath, " /usr/bin/nano");
  ASSERT_EQ(Asked.Questions.size(), 1U);
  EXPECT_EQ(Asked.Questions[0].InitDir, std::filesystem::current_path());
  EXPECT_EQ(Asked.Questions[0].Filter.back().Text, "Text Editor Programs (*.exe)");
  EXPECT_EQ(Asked.Questions[0].Filter.front().Pattern, "*");
  Click("frmFileIO", "cmdBrowse");
  EXPECT_EQ(Text("frmFileIO", "txtEditor"), " write") << "cancelling shows the text of the start";
}

TEST_F(FrmFileIO, ChosenResolutionIsTakenAtOnceAndBlue)
{
  EXPECT_EQ(ColourOf("opt600"), QColor(0, 0, 255));
  Click("frmFileIO", "opt1200");
  EXPECT_EQ(Shared.State.PrinterDpiFactor, 4);
  EXPECT_EQ(ColourOf("opt1200"), QColor(0, 0, 255));
  EXPECT_EQ(ColourOf("opt600"), QColor(0, 0, 0));
  QTest::keyClick(&Control("frmFileIO", "opt1200"), Qt::Key_Left);
  EXPECT_EQ(Shared.State.PrinterDpiFactor, 2);
  Shared.State.PrinterDpiFactor = 3;
  Reopen();
  for (const char* name : {"opt300", "opt600", "opt1200"}) {
    EXPECT_FALSE(Control<QRadioButton>("frmFileIO", name).isChecked()) << name;
  }
  Click("frmFileIO", "opt300");
  EXPECT_EQ(Shared.State.PrinterDpiFactor, 1);
}

TEST_F(FrmFileIO, EnterInTheListMovesAndLeavesTheWindowOpen)
{
  Enter("data");
  EXPECT_EQ(Shared.State.InputFilePath, (Directory / "data").string());
  EXPECT_EQ(Text("frmFileIO", "txtIOpath"), (Directory / "data").string());
  Enter("raw");
  Enter("..");
  EXPECT_EQ(Shared.State.InputFilePath, (Directory / "data").string());
  EXPECT_NE(Window("frmFileIO"), nullptr);
  EXPECT_TRUE(Asked.Said.empty());
}

TEST_F(FrmFileIO, CancelAndEscPutTheThreeValuesBack)
{
  for (const bool esc : {false, true}) {
    Reopen();
    Enter("data");
    Click("frmFileIO", "opt300");
    Asked.ChooseFile("/bin/ed");
    Click("frmFileIO", "cmdBrowse");
    Asked.Said.clear();
    if (esc) {
      QTest::keyClick(Window("frmFileIO"), Qt::Key_Escape);
    } else {
      Click("frmFileIO", "cmdCancel");
    }
    EXPECT_EQ(Asked.Said, std::vector<std::string>{Restored});
    EXPECT_EQ(Window("frmFileIO"), nullptr);
    EXPECT_EQ(Shared.State.InputFilePath, Directory.Path().string());
    EXPECT_EQ(Shared.State.TextEditorPath, " write");
    EXPECT_EQ(Shared.State.PrinterDpiFactor, 2);
  }
}

TEST_F(FrmFileIO, MissingInputPathShowsItsNearestParentAndStays)
{
  Shared.State.InputFilePath = (Directory / "data" / "gone" / "deeper").string();
  Reopen();
  EXPECT_EQ(Directories().toolTip().toStdString(), (Directory / "data").string());
  EXPECT_EQ(Text("frmFileIO", "txtIOpath"), (Directory / "data" / "gone" / "deeper").string());
  Click("frmFileIO", "cmdOK");
  EXPECT_THAT(ReadText(Directory / "VELN_te_fio_info.dat"), testing::HasSubstr("gone/deeper"));
}

TEST_F(FrmFileIO, DirectoryThatCanNotBeReadIsToldAndTheListStays)
{
  Enter("data");
  std::filesystem::remove(Directory / "data" / "raw");
  Enter("raw");
  ASSERT_EQ(Asked.Said.size(), 1U);
  EXPECT_THAT(Asked.Said[0], testing::HasSubstr("No such file or directory"));
  EXPECT_EQ(Directories().toolTip().toStdString(), (Directory / "data").string());
  EXPECT_EQ(Shared.State.InputFilePath, (Directory / "data").string());
}

TEST_F(FrmFileIO, OkWritesTheSixLines)
{
  Click("frmFileIO", "opt1200");
  Click("frmFileIO", "cmdOK");
  EXPECT_EQ(Window("frmFileIO"), nullptr);
  EXPECT_EQ(ReadText(Directory / "VELN_te_fio_info.dat"),
            "VELN default Text Editor information:\r\n write\r\n"
            "VELN default raw survey Input File path information:\r\n" +
                Directory.Path().string() + "\r\nDefault printer DPI: (1=300, 2=600, 4=1200 dpi)\r\n4\r\n");
  EXPECT_EQ(Asked.Said, std::vector<std::string>{
                            "inform: Your new VELN start-up information has been updated and saved."});
}

TEST_F(FrmFileIO, FailedWriteIsToldAndTheValuesStay)
{
  std::filesystem::create_directories(Directory / "VELN_te_fio_info.dat");
  Click("frmFileIO", "opt300");
  Click("frmFileIO", "cmdOK");
  ASSERT_EQ(Asked.Said.size(), 2U);
  EXPECT_EQ(Asked.Said[0], "beep");
  EXPECT_EQ(Shared.State.PrinterDpiFactor, 1);
}

}  // namespace
}  // namespace veln
