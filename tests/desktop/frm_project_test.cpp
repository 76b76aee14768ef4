#include "desktop/workspace/frm_project.h"

#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

#include <QAccessible>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QListWidget>
#include <QPushButton>

namespace veln {
namespace {

class FrmProject : public DesktopTest {
 protected:
  void SetUp() override { Shared.Show<frmProject>(); }

  static void ChooseFirstProject()
  {
    auto& list = Control<QListWidget>("frmProject", "List1");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
  }

  static QLineEdit& Code() { return Control<QLineEdit>("frmProject", "Text3"); }
  static bool CodeShown() { return Shown("frmProject", "Command1") && Shown("frmProject", "LblFID"); }
  static bool CodeHidden() { return !Shown("frmProject", "Command1") && !Shown("frmProject", "LblFID"); }
  static bool HasFocus(const char* name)
  {
    return Window("frmProject")->focusWidget() == &Control("frmProject", name);
  }
  [[nodiscard]] int Beeps() const
  {
    return static_cast<int>(std::count(Asked.Said.begin(), Asked.Said.end(), "beep"));
  }
};

TEST_F(FrmProject, EveryDeletionHidesTheCodeWithoutASound)
{
  ChooseFirstProject();
  const auto erase = [](Qt::Key key, Qt::KeyboardModifiers held) {
    Type("frmProject", "Text3", "AB12");
    EXPECT_TRUE(CodeShown());
    Code().setSelection(0, 1);
    QTest::keyClick(&Code(), key, held);
    EXPECT_TRUE(CodeHidden());
    EXPECT_EQ(Text("frmProject", "Text3"), "B12");
  };
  erase(Qt::Key_Backspace, {});
  erase(Qt::Key_Delete, {});
  erase(Qt::Key_X, Qt::ControlModifier);
  QTest::keyClicks(&Code(), "9");
  EXPECT_EQ(Text("frmProject", "LblFID"), "9B12") << "the fourth character may stand in front";
  EXPECT_TRUE(Asked.Said.empty());
}

TEST_F(FrmProject, CodeShowsOnItsFourthCharacterAndKeysThatEnterNothingPass)
{
  ChooseFirstProject();
  QTest::keyClicks(&Code(), "AB1");
  EXPECT_TRUE(CodeHidden());
  QTest::keyClicks(&Code(), "z");
  EXPECT_EQ(Control("frmProject", "LblFID").accessibleName(), "Field ID: AB1z");
  QTest::keyClick(&Code(), Qt::Key_Left);
  QTest::keyClick(&Code(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(CodeShown());
  QTest::keyClicks(&Code(), "5");
  EXPECT_TRUE(CodeHidden()) << "a further key hides it, though the box is full";
  EXPECT_EQ(Text("frmProject", "Text3"), "AB1z");
  EXPECT_TRUE(Asked.Said.empty());
}

TEST_F(FrmProject, UnderscoreBeepsInTheCodeAndPassesInAName)
{
  Click("frmProject", "Command5");
  Type("frmProject", "Text1", "north_1.b");
  EXPECT_EQ(Text("frmProject", "Text1"), "north_1.b");
  EXPECT_EQ(Beeps(), 0);
  QTest::keyClicks(&Control("frmProject", "Text1"), "- /");
  QTest::keyClick(&Control("frmProject", "Text1"), 'x', Qt::AltModifier);
  EXPECT_EQ(Text("frmProject", "Text1"), "north_1.bx") << "what a text box would enter passes the filter";
  EXPECT_EQ(Beeps(), 3);
  QTest::keyClicks(&Code(), "A_.");
  EXPECT_EQ(Text("frmProject", "Text3"), "A");
  EXPECT_EQ(Beeps(), 5);
}

TEST_F(FrmProject, PastedTextPassesCharacterByCharacter)
{
  ChooseFirstProject();
  QGuiApplication::clipboard()->setText("A-B 1_2");
  QTest::keyClick(&Code(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text("frmProject", "Text3"), "AB12");
  EXPECT_TRUE(CodeShown());
  EXPECT_EQ(Beeps(), 3);
  QGuiApplication::clipboard()->setText("CD345");
  Code().selectAll();
  QTest::keyClick(&Code(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text("frmProject", "Text3"), "CD34");
  EXPECT_TRUE(CodeHidden()) << "the fifth character counts as a further key";
}

TEST_F(FrmProject, ComposedTextPassesTheFilter)
{
  ChooseFirstProject();
  QInputMethodEvent composed;
  composed.setCommitString(
      QString::fromUtf8("A\u00e9\u4e2d\U0001F600"
                        "B12"));
  QApplication::sendEvent(&Code(), &composed);
  EXPECT_EQ(Text("frmProject", "Text3"), "AB12");
  EXPECT_TRUE(CodeShown());
  EXPECT_EQ(Beeps(), 3);
  Code().selectAll();
  QInputMethodEvent begun("x", {});
  QApplication::sendEvent(&Code(), &begun);
  EXPECT_TRUE(CodeHidden()) << "composing over the selection deletes it";
}

TEST_F(FrmProject, TextPutInByAnAssistiveTechnologyPassesTheFilter)
{
  ChooseFirstProject();
  QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&Code());
  face->setText(QAccessible::Value, "A+B1");
  EXPECT_EQ(Text("frmProject", "Text3"), "AB1");
  EXPECT_EQ(Beeps(), 1);
  face->setText(QAccessible::Value, "CD34");
  EXPECT_EQ(Text("frmProject", "LblFID"), "CD34");
  EXPECT_TRUE(CodeShown());
}

TEST_F(FrmProject, OpeningAndTabbingChooseNoProject)
{
  auto& list = Control<QListWidget>("frmProject", "List1");
  list.setFocus();
  Settle();
  EXPECT_EQ(Text("frmProject", "LblPrj"), "");
  QTest::keyClick(&list, Qt::Key_Space);
  EXPECT_EQ(Text("frmProject", "LblPrj"), "demo");
}

TEST_F(FrmProject, CreateMakesTheDirectoryAndBringsOkBack)
{
  auto& list = Control<QListWidget>("frmProject", "List1");
  ChooseFirstProject();
  QTest::keyClicks(&Code(), "AB12");
  Click("frmProject", "Command5");
  EXPECT_FALSE(Shown("frmProject", "Command1"));
  EXPECT_TRUE(list.selectedItems().isEmpty() && HasFocus("Text1"));
  QTest::keyClicks(&Control("frmProject", "Text1"), "new.field");
  QTest::keyClick(&Control("frmProject", "Text1"), Qt::Key_Return);
  EXPECT_TRUE(std::filesystem::is_directory(Directory / "data" / "new.field"));
  EXPECT_TRUE(Shown("frmProject", "Command1"));
  EXPECT_FALSE(Shown("frmProject", "Text1") || Shown("frmProject", "Command4"));
  EXPECT_EQ(list.selectedItems().at(0)->text(), "new.field");
}

TEST_F(FrmProject, NoToOverwritingEmptiesTheCodeAlone)
{
  WriteText(Directory / "data" / "demo" / "AB12info.txt", "");
  ChooseFirstProject();
  QTest::keyClicks(&Code(), "AB12");
  Asked.Answer(false);
  Click("frmProject", "Command1");
  EXPECT_EQ(Asked.Said.back(), "inform: Please enter a new Field ID code now.");
  EXPECT_EQ(Text("frmProject", "LblPrj") + Text("frmProject", "Text3"), "demo");
  EXPECT_TRUE(CodeHidden() && HasFocus("Text3"));
}

TEST_F(FrmProject, OkSetsProjectAndFieldAndMayBeRepeated)
{
  for (const char* code : {"AB12", "CD34"}) {
    Shared.Show<frmProject>();
    ChooseFirstProject();
    Type("frmProject", "Text2", std::string(70, 'd').c_str());
    QTest::keyClicks(&Code(), code);
    QTest::keyClick(&Code(), Qt::Key_Return);
    Settle();
    EXPECT_EQ(Window("frmProject"), nullptr);
    EXPECT_EQ(Shared.State.FieldId, code);
  }
  EXPECT_EQ(Shared.State.ProjectName, "demo");
  EXPECT_EQ(Shared.State.FieldDescription, std::string(60, 'd'));
  EXPECT_TRUE(Asked.Said.empty());
}

}  // namespace
}  // namespace veln
