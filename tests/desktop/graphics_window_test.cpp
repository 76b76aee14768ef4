// The graphics window: its menus, its plots, the line plots, pointing and zooming, saving and printing.
#include "desktop/graphics_fixture.h"
#include "signal/validation.h"

#include <QClipboard>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

namespace veln {
namespace {

class FrmSvyGraph : public GraphicsTest {
 protected:
  /// Turns the wheel over a place of the plot.
  void Wheel(QPointF at, int notches)
  {
    QWheelEvent event(at, Pane().mapToGlobal(at), {}, QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Pane(), &event);
  }
  double X(const char* label) { return std::stod(Label(label)); }
};

TEST_F(FrmSvyGraph, EveryEntryDraws)
{
  Open(SurveyWithDesigns());
  const int frameAlone = Ink();
  for (const char* entry :
       {"mnuGrid", "mnuHta", "mnuSs1x", "mnuSs1y", "mnuSs2x", "mnuSs2y", "mnuSs1s2", "mnuSz1z2", "mnuHs1",
        "mnuHs2", "mnuHz1", "mnuHz2", "mnuVs1", "mnuVs2", "mnuVz1", "mnuVz2", "mnuVta"}) {
    ASSERT_TRUE(Choose(entry)) << entry;
    EXPECT_GT(Ink(), frameAlone + 100) << entry;
  }
}

TEST_F(FrmSvyGraph, ZoomAndPanMoveLabelsAndComeBack)
{
  Open(SurveyWithDesigns(GridSurvey(11, 11, 2)));  // 0 to 100 in x and y
  ASSERT_TRUE(Choose("mnuGrid"));
  EXPECT_EQ(Label("txtMinX") + " " + Label("txtMedX") + " " + Label("txtMaxX"), "0 50 100");
  const QPointF corner = Pane().OnScreen({-1, 1});
  Wheel(corner, 3);  // about the site at 0, 0, which stays where it is
  EXPECT_NEAR(X("txtMinX"), 0, 0.5);
  EXPECT_NEAR(X("txtMaxX"), 100 / (1.25 * 1.25 * 1.25), 1);
  EXPECT_NEAR(X("txtMinY"), 0, 0.5);
  const double before = X("txtMedX");
  const QPoint from = Pane().rect().center();
  QTest::mousePress(&Pane(), Qt::LeftButton, {}, from);
  QTest::mouseMove(&Pane(), from - QPoint(100, 0));
  QTest::mouseRelease(&Pane(), Qt::LeftButton, {}, from - QPoint(100, 0));
  EXPECT_NEAR(X("txtMedX") - before, 100 / Pane().UnitLength() * 50 / Pane().View().Zoom(), 0.5);
  QTest::mouseDClick(&Pane(), Qt::LeftButton, {}, from);
  EXPECT_EQ(Label("txtMaxX"), "100");

  Pane().setFocus();
  QTest::keyClick(&Pane(), Qt::Key_Plus);
  EXPECT_NEAR(Pane().View().Zoom(), 1.25, 1e-9);
  QTest::keyClick(&Pane(), Qt::Key_Right);
  EXPECT_GT(X("txtMedX"), 55);
  QTest::keyClick(&Pane(), Qt::Key_Minus);
  QTest::keyClick(&Pane(), Qt::Key_Minus);
  EXPECT_EQ(Pane().View(), PlotView{});  // no further out than the whole plot
  QTest::keyClick(&Pane(), Qt::Key_Plus);
  QTest::keyClick(&Pane(), Qt::Key_Home);
  EXPECT_EQ(Pane().View(), PlotView{});
  QTest::keyClick(&Pane(), Qt::Key_Plus);
  ASSERT_TRUE(Choose("mnuSs1x"));
  EXPECT_EQ(Pane().View(), PlotView{});  // another plot shows whole
}

TEST_F(FrmSvyGraph, PointingAtASiteTellsIt)
{
  Open(SurveyWithDesigns(GridSurvey(11, 11, 2)));
  ASSERT_TRUE(Choose("mnuGrid"));
  const auto pointAt = [this](DrawPoint place, QPoint off) {
    QTest::mouseMove(&Pane(), Pane().rect().topLeft() + QPoint(1, 1));
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));  // it goes after a moment
    QTest::mouseMove(&Pane(), Pane().OnScreen(place).toPoint() + off);
    return QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
  };
  // Site 11 stands at 100, 0, and its neighbour 10 m to the west.
  EXPECT_THAT(pointAt({1, 1}, {3, -3}), AllOf(HasSubstr("11"), HasSubstr("100"), HasSubstr("EMv")));
  EXPECT_THAT(pointAt({-0.8, 1}, {0, 0}), HasSubstr("10"));
  EXPECT_EQ(pointAt({0.9, 0.9}, {0, 0}), "");
  ASSERT_TRUE(Choose("mnuHs1"));
  EXPECT_EQ(pointAt({1, 1}, {0, 0}), "");  // no sites in a histogram
}

TEST_F(FrmSvyGraph, OptionsRedrawTheMapOnScreen)
{
  Open(SurveyWithDesigns());
  ASSERT_TRUE(Choose("mnuVs1"));
  const int plain = Ink();
  ASSERT_TRUE(Choose("scaleBar"));
  EXPECT_GT(Ink(), plain);
  ASSERT_TRUE(Choose("scaleBar"));
  EXPECT_EQ(Ink(), plain);
  const QColor orange(255, 192, 0);
  EXPECT_GT(Count(orange), 0);
  ASSERT_TRUE(Choose("safeColours"));
  EXPECT_EQ(Count(orange), 0);
  EXPECT_EQ(Label("txtTitle"), "ColorScale Map of EMv Signal Data");
  EXPECT_TRUE(Entry("northArrow").isEnabled());
  Shared.State.Orientation.Degrees = 90;
  Shared.Changed();
  EXPECT_FALSE(Entry("northArrow").isEnabled());
}

TEST_F(FrmSvyGraph, StaysWhileTheSurveyChanges)
{
  RawSurvey survey = TransectSurvey(5, 20);
  survey.Signal1[7] = 2000;
  Open(DecorrelatedSurvey(survey));
  ASSERT_TRUE(Choose("mnuSz1z2"));
  DeleteOutliers(Shared.State);
  Shared.Changed();
  Settle();
  EXPECT_EQ(Label("txtTitle"), "RSD Scatter Plot:  z1 versus z2");
  const QPoint site = Pane().OnScreen(Graphics().Graph().Shown.Sites.front().At).toPoint();
  QTest::mouseMove(&Pane(), site + QPoint(40, 40));
  QTest::mouseMove(&Pane(), site);
  EXPECT_FALSE(QToolTip::isVisible()) << "the sites drawn are no longer those of the survey";
  Set(SurveyWithDesigns());
  for (const char* entry : {"mnuVs1", "mnuHs1", "mnuGrid", "mnuSs1s2"}) {
    EXPECT_TRUE(Choose(entry)) << entry;
  }
}

TEST_F(FrmSvyGraph, SavesCopiesPrintsAndPreviewsWhatIsShown)
{
  Open(SurveyWithDesigns());
  ASSERT_TRUE(Choose("mnuVs1"));
  std::filesystem::path offered;
  QString filter;
  Shared.ChooseFile = [&](const QString&, const std::filesystem::path& file, const QString& wanted) {
    offered = file;
    filter = wanted;
    return std::optional(Directory / "my map");
  };
  ASSERT_TRUE(Choose("savePicture"));
  Control<QSpinBox>("pictureDialog", "pictureWidth").setValue(9999);
  EXPECT_EQ(Control<QSpinBox>("pictureDialog", "pictureWidth").value(), 8000);
  Control<QSpinBox>("pictureDialog", "pictureWidth").setValue(1188);
  QTest::keyClick(Window("pictureDialog"), Qt::Key_Return);
  Settle();
  EXPECT_EQ(offered.filename(), "ab12plot.png");
  EXPECT_EQ(filter, "PNG pictures (*.png)");
  const QImage saved(QString::fromStdString((Directory / "my map.png").string()));
  EXPECT_EQ(saved.size(), QSize(1188, 978));
  EXPECT_EQ(Window("pictureDialog"), nullptr);

  ASSERT_TRUE(Choose("copyPicture"));
  const QImage copied = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copied.size(), saved.size());
  EXPECT_TRUE(copied.convertToFormat(QImage::Format_RGB32) == saved.convertToFormat(QImage::Format_RGB32));

  Shared.ChoosePrinter = [this](QPrinter& printer, QWidget*) {
    printer.setOutputFileName(QString::fromStdString((Directory / "page.pdf").string()));
    return true;
  };
  ASSERT_TRUE(Choose("mnuPrint"));
  EXPECT_TRUE(ReadText(Directory / "page.pdf").starts_with("%PDF"));
  ASSERT_TRUE(Choose("printPreview"));
  EXPECT_NE(Graphics().findChild<QPrintPreviewDialog*>(), nullptr);
}

}  // namespace
}  // namespace veln
