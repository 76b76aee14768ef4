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
  [[nodiscard]] int Beeps() const
  {
    return static_cast<int>(std::count(Asked.Said.begin(), Asked.Said.end(), "beep"));
  }
};

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

/// What a text box would enter passes the filter.
TEST_F(FrmProject, KeysWithAltEnterTheirCharacter)
{
  QTest::keyClick(&Code(), 'x', Qt::AltModifier);
  QTest::keyClick(&Code(), '_', Qt::AltModifier);
  EXPECT_EQ(Text("frmProject", "Text3"), "x");
  EXPECT_EQ(Beeps(), 1);
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

}  // namespace
}  // namespace veln
