#include "desktop/workspace/frm_file_io.h"

#include "desktop/desktop_fixture.h"

#include <QListWidget>
#include <QRadioButton>

namespace veln {
namespace {

class FrmFileIO : public DesktopTest {
 protected:
  void SetUp() override
  {
    std::filesystem::create_directories(Directory / "data" / "raw");
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
  EXPECT_EQ(Asked.Questions.at(0).InitDir, std::filesystem::current_path());
  EXPECT_EQ(Asked.Questions.at(0).Filter.back().Text, "Text Editor Programs (*.exe)");
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
}

TEST_F(FrmFileIO, CancelPutsTheThreeValuesBack)
{
  const SurveyState before = Shared.State;
  Enter("data");
  Click("frmFileIO", "opt300");
  Asked.ChooseFile("/bin/ed");
  Click("frmFileIO", "cmdBrowse");
  Click("frmFileIO", "cmdCancel");
  EXPECT_THAT(Asked.Said.back(), HasSubstr("Input file path information has been restored."));
  EXPECT_EQ(Window("frmFileIO"), nullptr);
  EXPECT_TRUE(Shared.State == before);
}

TEST_F(FrmFileIO, MissingInputPathShowsItsNearestParentAndOtherResolutionsNoOption)
{
  Shared.Find<frmFileIO>()->Unload();
  Settle();
  Shared.State.PrinterDpiFactor = 3;
  Shared.State.InputFilePath = (Directory / "data" / "gone" / "deeper").string();
  Shared.Show<frmFileIO>();
  EXPECT_EQ(Directories().toolTip().toStdString(), (Directory / "data").string());
  for (const char* name : {"opt300", "opt600", "opt1200"}) {
    EXPECT_FALSE(Control<QRadioButton>("frmFileIO", name).isChecked()) << name;
  }
  Click("frmFileIO", "cmdOK");
  EXPECT_THAT(ReadText(Directory / "VELN_te_fio_info.dat"), HasSubstr("gone/deeper"));
}

TEST_F(FrmFileIO, DirectoryThatCanNotBeReadIsToldAndTheListStays)
{
  Enter("data");
  Enter("raw");
  Enter("..");
  EXPECT_EQ(Text("frmFileIO", "txtIOpath"), (Directory / "data").string());
  std::filesystem::remove(Directory / "data" / "raw");
  Enter("raw");
  EXPECT_THAT(Asked.Said, ElementsAre(HasSubstr("No such file or directory")));
  EXPECT_EQ(Directories().toolTip().toStdString(), (Directory / "data").string());
  EXPECT_EQ(Shared.State.InputFilePath, (Directory / "data").string());
}

TEST_F(FrmFileIO, OkSavesWhatWasChosen)
{
  Click("frmFileIO", "opt1200");
  Click("frmFileIO", "cmdOK");
  EXPECT_EQ(Window("frmFileIO"), nullptr);
  EXPECT_THAT(ReadText(Directory / "VELN_te_fio_info.dat"), EndsWith("1200 dpi)\r\n4\r\n"));
  EXPECT_THAT(Asked.Said, ElementsAre(HasSubstr("start-up information has been updated and saved.")));
}

}  // namespace
}  // namespace veln
