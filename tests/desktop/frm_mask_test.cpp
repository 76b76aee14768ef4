#include "desktop/design/frm_mask.h"

#include "desktop/design_windows.h"

#include <QTableWidget>

namespace veln {
namespace {

class FrmMask : public DesignWindows {
 protected:
  void OpenMask()
  {
    Shared.Show<frmMask>();
    Settle();
  }

  /// Enters a number and presses a button, or Enter.
  static void Give(const char* number, const char* button = nullptr)
  {
    QTest::keyClicks(Window("frmMask")->focusWidget(), number);
    if (button == nullptr) {
      QTest::keyClick(Window("frmMask")->focusWidget(), Qt::Key_Return);
      Settle();
    } else {
      Click("frmMask", button);
    }
  }

  static std::string Answer()
  {
    EXPECT_TRUE(Shown("frmMask", "Label2") && !Shown("frmMask", "Text2"));
    const QColor colour = Control("frmMask", "Label2").palette().color(QPalette::WindowText);
    return Text("frmMask", "Label2") + (colour == QColor(255, 0, 0) ? " (light red)" : "");
  }

  /// The first column of the table.
  static std::string Table()
  {
    std::string ids;
    const auto& table = Control<QTableWidget>("frmMask", "sites");
    for (int row = 0; row < table.rowCount(); ++row) {
      ids += table.item(row, 0)->text().toStdString() + " ";
    }
    return ids;
  }
};

TEST_F(FrmMask, SitesArePickedByTheirNumber)
{
  Accept(5, 100);
  Shared.State.SiteStatus[6] = site_status::Masked;
  OpenMask();
  EXPECT_FALSE(Shown("frmMask", "Label2") || Shown("frmMask", "Text2"));
  struct Case {
    const char *Number, *Button, *Answer, *Table;
  };
  for (const Case& step : {Case{"12", nullptr, " Action: Site  12 successfully selected.", "12 "},
                           Case{"7", "Command1", " Action: Site  7 successfully selected.", "7 12 "},
                           Case{"7", "Command2", " Action: Site  7 successfully unselected.", "12 "},
                           Case{"99999", nullptr, " Warning! Site  99999 does not exist. (light red)", "12 "},
                           Case{"100", nullptr, " Action: Site  100 successfully selected.", "12 100 "}}) {
    SCOPED_TRACE(step.Answer);
    Give(step.Number, step.Button);
    EXPECT_EQ(Answer(), step.Answer);
    EXPECT_EQ(Table(), step.Table);
    EXPECT_EQ(Text("frmMask", "Text1"), "");
    EXPECT_TRUE(Control("frmMask", "Text1").hasFocus());
  }
  EXPECT_TRUE(Asked.Said.empty());
  Click("frmMask", "Command4");
  EXPECT_TRUE(Shown("frmMask", "Text2"));
  EXPECT_EQ(Control<QPlainTextEdit>("frmMask", "Text2").toPlainText(), " Selected Sites:   12  100");
  Give("a1-23 4567", nullptr);  // five digits
  EXPECT_EQ(Answer(), " Warning! Site  12345 does not exist. (light red)");
  EXPECT_EQ(Asked.Said, std::vector<std::string>(3, "beep"));
}

TEST_F(FrmMask, DoneSavesWhenAskedTo)
{
  Accept(5, 100);
  OpenMask();
  Give("12");
  QTest::keyClick(Window("frmMask"), Qt::Key_Escape);
  Settle();
  EXPECT_EQ(Window("frmMask"), nullptr);
  OpenMask();
  EXPECT_EQ(Table(), "12 ") << "a selection outlives the window";
  EXPECT_FALSE(Control<QAbstractButton>("frmMask", "Check1").isChecked());
  Click("frmMask", "Check1");
  std::filesystem::create_directory(Project / "ab12ugsd.txt");
  Click("frmMask", "Command3");
  EXPECT_THAT(Asked.Said.back(), HasSubstr("warn: Warning: could not create output UGSD file..."));
  ASSERT_NE(Window("frmMask"), nullptr);
  std::filesystem::remove(Project / "ab12ugsd.txt");
  Click("frmMask", "Command3");
  EXPECT_EQ(Window("frmMask"), nullptr);
  EXPECT_FALSE(Shared.State.Menu.IsEnabled(MenuEntry::mnuMask));
  EXPECT_THAT(ListFiles(Project), ElementsAre("ab12ugsd.txt"));
}

}  // namespace
}  // namespace veln
