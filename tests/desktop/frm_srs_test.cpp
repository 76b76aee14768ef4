#include "desktop/design/frm_srs.h"

#include "desktop/design_windows.h"
#include "desktop/shown.h"
#include "forms/design_forms.h"
#include "render/drawing_painter.h"

#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTableWidget>

namespace veln {
namespace {

class FrmSrs : public DesignWindows {
 protected:
  static void Press(const char* name, Qt::Key key)
  {
    QTest::keyClick(&Control("frmSRS", name), key);
    Settle();
  }

  static QTableWidget& Sites() { return Control<QTableWidget>("frmSRS", "sites"); }
};

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
  const std::string form = Describe(Form());
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
  EXPECT_EQ(Describe(Form()), form);
  ExpectWindowsShowTheirForms(Shared);
  EXPECT_FALSE(Shown("frmSRS", "Stop"));
  EXPECT_EQ(Window("frmSRSOpt"), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
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

/// The listing keeps the levels as they stood, on white paper.
TEST_F(FrmSrs, ListingIsAsLongAsItsSizeWants)
{
  const QPalette desktop = QApplication::palette();
  QPalette dark = desktop;
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::Base, Qt::black);
  QApplication::setPalette(dark);
  Open(5, 100);
  int full = 0;
  for (const auto& [size, percent] :
       {std::pair{"Option3", 100}, std::pair{"Option2", 80}, std::pair{"Option1", 65}}) {
    Click("frmSRS", size);
    Click("frmSRS", "Command1");
    auto& listing = Control<QPlainTextEdit>("frmDList", "listing");
    full = percent == 100 ? listing.height() : full;
    EXPECT_NEAR(listing.height(), full * percent / 100, 2);
    EXPECT_EQ(listing.verticalScrollBar()->maximum(), 0) << "nothing is cut off";
    EXPECT_EQ(listing.palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(listing.palette().color(QPalette::Text), QColor(Qt::black));
    const QString text = listing.toPlainText();
    Click("frmSRS", "Option1");
    EXPECT_EQ(listing.toPlainText(), text) << "it does not follow later changes";
    Pick("frmDList", "mnuDone");
  }
  QApplication::setPalette(desktop);
}

}  // namespace
}  // namespace veln
