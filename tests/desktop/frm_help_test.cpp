#include "desktop/desktop_fixture.h"
#include "desktop/program/help_request.h"
#include "desktop/workspace/frm_about.h"

#include <QPushButton>
#include <QTextBrowser>

namespace veln {
namespace {

class FrmHelp : public MainWindowTest {
 protected:
  void Document(const char* name, const std::string& content)
  {
    WriteText(Directory / "helpdocs" / (std::string(name) + ".rtf"), content);
  }

  std::string WarningOf(const char* name)
  {
    return "warn: Warning!  File resource error.  VELN can not find the following file:\n" +
           (Directory / "helpdocs" / (std::string(name) + ".rtf")).string();
  }

  static std::string Page()
  {
    return Control<QTextBrowser>("frmHelp", "RTB1").toPlainText().trimmed().toStdString();
  }
};

TEST_F(FrmHelp, TwoRequestsLeaveOneWindowWithTheSecondDocument)
{
  Document("hdoc14", R"({\rtf1 The first\par})");
  Document("hdoc04", R"({\rtf1 The second \b one\b0\par})");
  ASSERT_TRUE(Choose("mnuMH1"));
  EXPECT_EQ(Page(), "The first");
  QWidget* window = Window("frmHelp");
  EXPECT_EQ(window->windowTitle(), "VELN-QTRD OnLine Help");
  EXPECT_TRUE(Control<QTextBrowser>("frmHelp", "RTB1").isReadOnly());
  Choose("mnuProject");
  QTest::keyClick(Window("frmProject"), Qt::Key_F1);
  EXPECT_EQ(Window("frmHelp"), window);
  EXPECT_EQ(Page(), "The second one");
}

TEST_F(FrmHelp, MissingOrDamagedDocumentBeepsAndWarnsAndOpensNothing)
{
  Document("hdoc15", R"({\rtf1 {cut)");
  RequestHelp(Shared, "hdoc14");
  QTest::keyClick(Main.get(), Qt::Key_F1);
  EXPECT_THAT(Asked.Said, ElementsAre("beep", WarningOf("hdoc14"), "beep", WarningOf("hdoc15")));
  EXPECT_EQ(Window("frmHelp"), nullptr);
}

TEST_F(FrmHelp, PrintStartsTheEditorOnACopyByteForByte)
{
  const std::string content = "{\\rtf1 A page\\par}\r\n";
  Document("hdoc14", content);
  RequestHelp(Shared, "hdoc14");
  Click("frmHelp", "Command1");
  EXPECT_EQ(ReadText(Directory / "helpdoc.rtf"), content);
  EXPECT_THAT(Asked.Said, ElementsAre("shell: [write] [" + (Directory / "helpdoc.rtf").string() + "]"));
  EXPECT_EQ(Text("frmHelp", "Command1"), "Print this Help File");
  EXPECT_EQ(Text("frmHelp", "Command2"), "Return to VELN");
  Click("frmHelp", "Command2");
  EXPECT_EQ(Window("frmHelp"), nullptr);
}

TEST_F(FrmHelp, AboutTellsVersionLicenceAndMaker)
{
  ASSERT_TRUE(Choose("mnuAbout"));
  EXPECT_EQ(Text("frmAbout", "LblVersion"), "Version  2.35R");
  const std::string text = Text("frmAbout", "LblAbout");
  EXPECT_THAT(text, HasSubstr("MIT"));
  EXPECT_THAT(text, HasSubstr("Qt " + std::string(qVersion())));
  EXPECT_THAT(text, HasSubstr("Maker and author: Norvane Laboratory"));
  EXPECT_EQ(Control("frmAbout", "Command1").toolTip(), " return to main program menu ");
  QTest::keyClick(Window("frmAbout"), Qt::Key_Return);
  EXPECT_EQ(Window("frmAbout"), nullptr);
}

}  // namespace
}  // namespace veln
