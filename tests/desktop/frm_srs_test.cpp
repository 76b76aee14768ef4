#include "desktop/design/frm_srs.h"

#include "desktop/design_windows.h"
#include "forms/design_forms.h"
#include "render/drawing_painter.h"

#include <QProgressBar>
#include <QTableWidget>

namespace veln {
namespace {

class FrmSrs : public DesignWindows {
 protected:
  /// The controls of a line: '+' open, 'o' closed, '.' not to be seen. Groups are divided by blanks.
  static std::string Look()
  {
    constexpr const char* Widgets =
        "Frame1 Option1 Option2 Option3 / Frame2 Check1 Label1 Text1 HScroll1 Check2 Check3 / Command1 "
        "Command2 Command3 Command4 Command5";
    constexpr const char* Entries =
        "mnuSRSNewOptions mnuSRSReduce mnuSRSr50 mnuSRSr67 mnuSRSr75 mnuSRSr80 mnuSRSRecover";
    std::string look;
    std::istringstream widgets(Widgets);
    for (std::string name; widgets >> name;) {
      if (name == "/") {
        look += ' ';
        continue;
      }
      const QWidget& widget = Control("frmSRS", name.c_str());
      look += !widget.isVisible() ? '.' : widget.isEnabled() ? '+' : 'o';
    }
    look += ' ';
    std::istringstream entries(Entries);
    for (std::string name; entries >> name;) {
      look += Control<QAction>("frmSRS", name.c_str()).isEnabled() ? '+' : 'o';
    }
    return look;
  }

  /// What the window says: design, sample size, D-factor, boxes that are on, the way out, and the size
  /// chosen. What is chosen is light blue, the rest black.
  static std::string Values()
  {
    std::string text =
        Text("frmSRS", "LblDN") + " of " + Text("frmSRS", "LblSS") + ", D " + Text("frmSRS", "Text1") + ", ";
    std::string sizes;
    for (const char* name : {"Check1", "Check2", "Check3", "Option1", "Option2", "Option3"}) {
      const auto& button = Control<QAbstractButton>("frmSRS", name);
      EXPECT_EQ(button.palette().color(QPalette::Active, QPalette::WindowText),
                button.isChecked() ? QColor(0, 0, 255) : QColor(0, 0, 0))
          << name;
      if (name[0] == 'C') {
        text += button.isChecked() ? '1' : '0';
      } else if (button.isChecked()) {
        sizes += ", " + Text("frmSRS", name).substr(0, 4);
      }
    }
    return text + ", " + Text("frmSRS", "Command3") + sizes;
  }

  static void Press(const char* name, Qt::Key key)
  {
    QTest::keyClick(&Control("frmSRS", name), key);
    Settle();
  }

  static QTableWidget& Sites() { return Control<QTableWidget>("frmSRS", "sites"); }
};

TEST_F(FrmSrs, ControlsFollowEachActionOfAUser)
{
  struct Step {
    const char* What;
    std::function<void()> Do;
    const char* Look;
    const char* Values;
  };
  const auto click = [](const char* name) { return [name] { Click("frmSRS", name); }; };
  const auto pick = [](const char* name) { return [name] { Pick("frmSRS", name); }; };
  const auto press = [](const char* name, Qt::Key key) { return [name, key] { Press(name, key); }; };
  const char* ready = "++++ ++...++ +++.. +++oooo";
  const char* bar = "++++ +++++++ +++.. +++oooo";  // the D-factor's controls are shown
  const char* halved = "++++ ++...++ +++.. +o+ooo+";
  const char* finished = "oooo oo...oo ..+++ o++oooo";
  const std::vector<Step> steps = {
      {"load", [this] { Open(250, 5000, true); }, ready, "1 of 12, D 1.00, 000, Cancel, n=12"},
      {"full size", click("Option3"), ready, "1 of 20, D 1.00, 000, Cancel, n=20"},
      {"D-factor shown", click("Check1"), bar, "1 of 20, D 1.00, 100, Cancel, n=20"},
      {"five up", press("HScroll1", Qt::Key_PageUp), bar, "1 of 20, D 1.05, 100, Cancel, n=20"},
      {"one to the right", press("HScroll1", Qt::Key_Right), bar, "1 of 20, D 1.06, 100, Cancel, n=20"},
      {"D-factor hidden, in force", click("Check1"), ready, "1 of 20, D 1.06, 000, Cancel, n=20"},
      {"no scores", click("Check2"), ready, "1 of 20, D 1.06, 010, Cancel, n=20"},
      {"parsing", click("Check3"), ready, "1 of 20, D 1.06, 011, Cancel, n=20"},
      {"no support", pick("mnuSSexclude"), ready, "1 of 18, D 1.06, 011, Cancel, n=18"},
      {"half the sites", pick("mnuSRSr50"), halved, "1 of 18, D 1.06, 011, Cancel, n=18"},
      {"all sites", pick("mnuSRSRecover"), ready, "1 of 18, D 1.06, 011, Cancel, n=18"},
      {"run", click("Command2"), finished, "1 of 18, D 1.06, 011, Finished, n=18"},
      {"a size in vain", click("Option1"), finished, "1 of 18, D 1.06, 011, Finished, n=18"},
      {"discard", click("Command5"), ready, "1 of 18, D 1.06, 010, Finished, n=18"},
      {"limited size", click("Option1"), ready, "1 of 5, D 1.06, 010, Finished, n=5 "},
      {"support", pick("mnuSSinclude"), ready, "1 of 6, D 1.06, 010, Finished, n=6 "},
      {"Enter runs", press("Option1", Qt::Key_Return), finished, "1 of 6, D 1.06, 010, Finished, n=6 "},
      {"Enter is no button then", press("sites", Qt::Key_Return), finished,
       "1 of 6, D 1.06, 010, Finished, n=6 "},
      {"nor is Esc", press("sites", Qt::Key_Escape), finished, "1 of 6, D 1.06, 010, Finished, n=6 "},
      {"save", click("Command4"), ready, "2 of 6, D 1.06, 010, Finished, n=6 "}};
  for (const Step& step : steps) {
    SCOPED_TRACE(step.What);
    step.Do();
    EXPECT_EQ(Look(), step.Look);
    EXPECT_EQ(Values(), step.Values);
    EXPECT_EQ(Window("frmParse") != nullptr, Form().Check3);
    EXPECT_EQ(Sites().rowCount(), Form().Finished ? Form().Finished->PointCount() : 0);
  }
  EXPECT_THAT(Asked.Said,
              ElementsAre("inform: Support sites will be excluded from all sample designs.", "beep",
                          "inform: The active # of survey sites have been reduced by 50%", "beep",
                          "inform: All previously removed survey sites have been recovered.",
                          "inform: Support sites will be included in all sample designs.",
                          "inform: SRSD sampling design information has been saved to ab12rsd1.txt"));
  EXPECT_FALSE(Shared.State.Menu.IsEnabled(MenuEntry::mnuMask));
  EXPECT_TRUE(Shared.State.Menu.IsEnabled(MenuEntry::mnuSHowMap));
}

TEST_F(FrmSrs, SizesAreOpenByTheSitesThatAreFree)
{
  Open(5, 47);
  EXPECT_EQ(Look().substr(0, 12), "++oo ++...oo") << "one size, and neither scores nor strata";
  EXPECT_EQ(Text("frmSRS", "LblMS"), "Total Survey size =  100  Active (available) Survey size =  47");
  Click("frmSRS", "Command3");
  EXPECT_EQ(Window("frmSRS"), nullptr);
  Open(5, 23);
  EXPECT_EQ(Window("frmSRS"), nullptr);
  EXPECT_FALSE(Shared.State.Menu.IsEnabled(MenuEntry::mnuSRS));
}

TEST_F(FrmSrs, DesignThatCanNotBeSavedWaitsUntilTheCauseIsMended)
{
  Open(5, 100);
  Click("frmSRS", "Command2");
  const SurveyState before = Shared.State;
  std::filesystem::create_directory(Project / "ab12rsd1.txt");
  Click("frmSRS", "Command4");
  EXPECT_THAT(Asked.Said, ElementsAre(AllOf(StartsWith("warn: "), HasSubstr("ab12rsd1.txt"))));
  EXPECT_EQ(Look(), "oooo oo...oo ..+++ ooooooo");
  EXPECT_TRUE(Shared.State == before);
  std::filesystem::remove(Project / "ab12rsd1.txt");
  Click("frmSRS", "Command4");
  EXPECT_EQ(Asked.Said.back(), "inform: SRSD sampling design information has been saved to ab12rsd1.txt");
  EXPECT_EQ(Text("frmSRS", "LblDN"), "2");
}

TEST_F(FrmSrs, StoppedSelectionLeavesEverythingAsItWas)
{
  Open(20, 400);
  Click("frmSRS", "Option1");
  Click("frmSRS", "Check1");
  Press("HScroll1", Qt::Key_Right);
  Click("frmSRS", "Check3");
  Click("frmParse", "Option2");
  Click("frmParse", "Command1");
  Asked.Said.clear();
  const SurveyState state = Shared.State;
  const std::string window = Describe(Form()) + Values();
  Asked.Answer(true);
  std::string progress;
  QTimer::singleShot(0, [&] {  // the selection lets events through before its first design
    progress = Control<QProgressBar>("frmSRS", "selectionProgress").text().toStdString();
    for (const char* name : {"Command1", "Command2", "Command3", "Check1", "Option3"}) {
      QTest::mouseClick(&Control("frmSRS", name), Qt::LeftButton, {}, {10, 10});
    }
    QTest::keyClick(Window("frmSRS"), Qt::Key_F1);  // the help is missing, which would be told
    QTest::keyClick(Window("frmSRS"), Qt::Key_Escape);
    Window("frmSRS")->close();
    QTest::mouseClick(&Control("frmSRS", "Stop"), Qt::LeftButton);
  });
  Pick("frmSRS", "mnuSRSAutoFull");
  EXPECT_EQ(progress, "design 1 of 14");
  EXPECT_THAT(Asked.Said,
              ElementsAre("ask: Note: there are  14 designs to analyze.\nDo you still wish to invoke "
                          "the ADS algorithm?"));
  EXPECT_TRUE(Shared.State == state);
  EXPECT_EQ(Describe(Form()) + Values(), window);
  EXPECT_FALSE(Shown("frmSRS", "Stop"));
  EXPECT_EQ(Window("frmSRSOpt"), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FrmSrs, CompanionsCloseWithTheirWindow)
{
  Open(20, 400);
  Click("frmSRS", "Check3");
  Click("frmSRS", "Command1");
  Shared.ShowWith<frmSRSOpt>([this](QWidget* main) { return new frmSRSOpt(Shared, main, {}); });
  Click("frmSRS", "Command2");
  EXPECT_GT(Candidates(), 0);
  Window("frmSRS")->close();
  Settle();
  for (const char* name : {"frmSRS", "frmParse", "frmDList", "frmSRSOpt"}) {
    EXPECT_EQ(Window(name), nullptr) << name;
  }
  EXPECT_EQ(Candidates(), 0);
  EXPECT_THAT(Asked.Said, IsEmpty());
}

TEST_F(FrmSrs, SavingClosesWhatADesignEnds)
{
  Open(5, 29);  // 6 sites for the design, 23 are left
  Shared.Show<frmMask>();
  Click("frmSRS", "Command2");
  EXPECT_NE(Window("frmMask"), nullptr);
  Click("frmSRS", "Command4");
  EXPECT_EQ(Window("frmMask"), nullptr);
  EXPECT_EQ(Window("frmSRS"), nullptr);
  EXPECT_THAT(Asked.Said.back(), HasSubstr("not enough avaliable survey sites"));
}

TEST_F(FrmSrs, SecondClickOfADoubleClickDecidesNothing)
{
  Open(5, 100);
  Click("frmSRS", "Command2");
  QWidget& discard = Control("frmSRS", "Command5");
  const QPointF middle = QRectF(discard.rect()).center();
  QMouseEvent second(QEvent::MouseButtonDblClick, middle, discard.mapToGlobal(middle), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&discard, &second);
  QTest::mouseRelease(&discard, Qt::LeftButton);
  EXPECT_TRUE(Form().Finished);
}

TEST_F(FrmSrs, TableAndMapPointAtEachOther)
{
  Open(5, 100);
  Click("frmSRS", "Command2");
  auto& view = Control("frmSRS", "PictGW");
  QTableWidget& sites = Sites();
  ASSERT_EQ(sites.rowCount(), 12);
  EXPECT_EQ(sites.item(11, sites.columnCount() - 1)->text(), "yes");
  const QImage first = view.grab().toImage();
  sites.selectRow(7);
  EXPECT_NE(view.grab().toImage(), first) << "another site has the ring";
  ProgressView map(Shared.State, [] {});
  map.MapReady();
  const DrawPoint place = map.Place(sites.item(3, 2)->text().toDouble(), sites.item(3, 3)->text().toDouble());
  const QPointF at = FitDrawing(map.Picture(), view.rect()).Map(map.Picture(), place);
  QTest::mouseMove(&view, at.toPoint());
  Settle();
  EXPECT_EQ(sites.currentRow(), 3);
  Click("frmSRS", "Command5");
  EXPECT_EQ(sites.rowCount(), 0);
  const QImage cleared = view.grab().toImage();
  EXPECT_EQ(cleared.pixelColor(cleared.rect().center()), QColor(Qt::white));
}

TEST_F(FrmSrs, StatusLineRemembersItsLastTwentyTexts)
{
  Open(5, 100);
  const auto texts = [] { return Control("frmSRS", "LblMS").toolTip().split('\n'); };
  Click("frmSRS", "Option1");
  Click("frmSRS", "Command2");
  EXPECT_TRUE(texts().contains(" loading grid data, one moment please..."));
  for (const char* again : {"Command5", "Command2", "Command5", "Command2"}) {
    Click("frmSRS", again);
  }
  EXPECT_EQ(texts().size(), 20);
  EXPECT_EQ(texts().constLast().toStdString(), Text("frmSRS", "LblMS"));
  EXPECT_THAT(Text("frmSRS", "LblMS"), StartsWith("Algorithm FINISHED:  Final Opt-Criteria = "));
}

}  // namespace
}  // namespace veln
