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

/// Menu entries with their captions, by what opens them: "" always, "2" two signals, "d" a decorrelation,
/// "d2" both, "t" a transition analysis.
const std::map<std::string, std::vector<std::string>> Given = {
    {"",
     {"mnuG: Graphics",
      "mnuGrid: Survey Grid",
      "mnuScatter: Scatter Plots",
      "mnuSs1x: s1 vs x",
      "mnuSs1y: s1 vs y",
      "mnuLs1: s1 by row",
      "mnuHist: Histograms",
      "mnuHs1: s1",
      "mnuCSG: ColorScale Grids",
      "mnuVs1: s1",
      "savePicture: Save picture...",
      "copyPicture: Copy",
      "mnuO: Options",
      "mnuIGC: Initialize Graphic Components",
      "mnuPCT: Perform Coordinate Translation",
      "mnuP: Print",
      "mnuPrint: Print Current Graph",
      "printPreview: Print Preview",
      "mnuHelp: Help",
      "mnuGHelp: OnLine Help",
      "mnuGH1: Navigating the Graphics Menu",
      "mnuGH2: Graph Descriptions / Information",
      "mnuR: Exit",
      "mnuReturn: Return to Main VELN Program Menu"}},
    {"2", {"mnuSs2x: s2 vs x", "mnuSs2y: s2 vs y", "mnuSs1s2: s1 vs s2", "mnuHs2: s2", "mnuVs2: s2"}},
    {"d", {"mnuSz1z2: rsd plot", "mnuHz1: z1", "mnuVz1: z1"}},
    {"never",
     {"mnuLine: Line Plots", "mnuLs2: s2 by row", "mnuLs1s2: s1 and s2 by row",
      "mnuOSS: overlay sample sites"}},
    {"d2", {"mnuHz2: z2", "mnuVz2: z2"}},
    {"t", {"mnuHta: trans analysis", "mnuVta: trans analysis"}}};

class FrmSvyGraph : public GraphicsTest {
 protected:
  void OpenLinePlots()
  {
    Open(SurveyWithDesigns());
    ASSERT_TRUE(Choose("mnuIGC"));
    for (const char* choice : {"Check1", "Option2", "Command2"}) {
      Click("frmIGC", choice);
    }
    ASSERT_TRUE(Choose("mnuLs1s2"));
  }
  /// Turns the wheel over a place of the plot.
  void Wheel(QPointF at, int notches)
  {
    QWheelEvent event(at, Pane().mapToGlobal(at), {}, QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&Pane(), &event);
  }
  double X(const char* label) { return std::stod(Label(label)); }
};

TEST_F(FrmSvyGraph, OpensItsEntriesAsTheWorkGoesOn)
{
  const std::pair<SurveyState, std::set<std::string>> stages[] = {
      {ImportedSurvey(GridSurvey(10, 10, 1)), {""}},
      {ImportedSurvey(TransectSurvey(5, 20)), {"", "2"}},
      {DecorrelatedSurvey(GridSurvey(10, 10, 1)), {"", "d"}},
      {SurveyWithDesigns(), {"", "2", "d", "d2", "t"}}};
  for (const auto& [state, open] : stages) {
    Open(state);
    EXPECT_EQ(Window("frmSvyGraph")->windowTitle(), "Interactive Survey Graphics Mode");
    EXPECT_EQ(Label("txtTitle"), "Please use the Menu Bar to Select a Graph");
    for (const auto& [openFrom, entries] : Given) {
      for (const std::string& given : entries) {
        const QAction& entry = Entry(given.substr(0, given.find(':')).c_str());
        EXPECT_EQ((entry.objectName() + ": " + entry.text().remove('&')).toStdString(), given);
        EXPECT_EQ(entry.isEnabled(), open.contains(openFrom)) << given;
      }
    }
    for (const char* panel : {"Frame1", "Frame2", "Frame3"}) {
      EXPECT_FALSE(Shown("frmSvyGraph", panel)) << panel;
    }
    ASSERT_TRUE(Choose("mnuReturn"));
    EXPECT_EQ(Window("frmSvyGraph"), nullptr);
  }
}

TEST_F(FrmSvyGraph, EveryEntryDraws)
{
  const std::map<std::string, std::vector<const char*>> panels = {
      {"", {"mnuGrid", "mnuHta"}},
      {"2",
       {"mnuSs1x", "mnuSs1y", "mnuSs2x", "mnuSs2y", "mnuSs1s2", "mnuSz1z2", "mnuHs1", "mnuHs2", "mnuHz1",
        "mnuHz2"}},
      {"3", {"mnuVs1", "mnuVs2", "mnuVz1", "mnuVz2", "mnuVta"}}};  // by the number of the frame that shows
  Open(SurveyWithDesigns());
  const int frameAlone = Ink();
  for (const auto& [panel, entries] : panels) {
    for (const char* entry : entries) {
      SCOPED_TRACE(entry);
      ASSERT_TRUE(Choose(entry));
      EXPECT_GT(Ink(), frameAlone + 100);
      EXPECT_FALSE(Shown("frmSvyGraph", "Frame1"));
      EXPECT_EQ(Shown("frmSvyGraph", "Frame2"), panel == "2");
      EXPECT_EQ(Shown("frmSvyGraph", "Frame3"), panel == "3");
      EXPECT_EQ(Entry("mnuOSS").isEnabled(), panel == "3");
      for (const char* label : {"txtMinX", "txtMedX", "txtMaxX", "txtMinY", "txtMedY", "txtMaxY"}) {
        EXPECT_NE(Label(label), "") << label;
      }
      EXPECT_THAT(Pane().accessibleDescription().toStdString(),
                  AllOf(StartsWith(Label("txtTitle")), HasSubstr(Label("txtMaxX"))));
    }
  }
  EXPECT_EQ(Label("txtTitle"), "ColorScale Map of z1 Transition Signal Variability");
  EXPECT_EQ(Window("frmSvyGraph")->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(FrmSvyGraph, LinePlotsComeByWayOfTheOptions)
{
  OpenLinePlots();
  EXPECT_EQ(Label("txtTitle"), "Please use Line Plot Buttons to select a row to Display");
  EXPECT_TRUE(Shown("frmSvyGraph", "Frame1"));
  const auto open = [] {
    std::string look;
    for (const char* name : {"Command1", "Command2", "Command6", "Command7"}) {
      look += Control("frmSvyGraph", name).isEnabled() ? '+' : 'o';
    }
    return look;
  };
  EXPECT_EQ(open(), "+ooo");
  const int frameAlone = Ink();
  Click("frmSvyGraph", "Command1");
  EXPECT_EQ(Label("Text1"), "2");
  Click("frmSvyGraph", "Command3");
  EXPECT_EQ(Label("txtTitle"), "EMv & EMh versus X for Row #2");
  EXPECT_GT(Ink(), frameAlone + 100);
  EXPECT_EQ(open(), "+++o");
  Click("frmSvyGraph", "Command6");
  EXPECT_EQ(Label("LblT1") + " " + Label("LblCorr"), "EMv Corr(s1, x)");
  Click("frmSvyGraph", "Command7");
  EXPECT_EQ(Label("LblT2") + " " + Label("LblCorr"), "EMh s1 s2 Corr");
  Click("frmSvyGraph", "Command4");
  EXPECT_EQ(Ink(), frameAlone);
  Click("frmSvyGraph", "Command5");
  EXPECT_FALSE(Shown("frmSvyGraph", "Frame1"));
  EXPECT_EQ(Label("txtMinX"), "");
}

TEST_F(FrmSvyGraph, RowNumbersAreTypedInDigitsAndMustExist)
{
  OpenLinePlots();
  Type("frmSvyGraph", "Text1", "9x");
  EXPECT_EQ(Label("Text1"), "9");
  EXPECT_EQ(Asked.Said.back(), "beep");
  QTest::keyClick(&Control("frmSvyGraph", "Text1"), Qt::Key_Return);
  EXPECT_EQ(Asked.Said.back(), "inform: Error! Requested Row # does not exist!");
  QGuiApplication::clipboard()->setText("abc");
  auto& row = Control<QLineEdit>("frmSvyGraph", "Text1");
  row.selectAll();
  QTest::keyClick(&row, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Label("Text1"), "abc");  // pasted text comes in, and is no number
  Click("frmSvyGraph", "Command3");
  EXPECT_EQ(Label("Text1"), "0");
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

TEST_F(FrmSvyGraph, OverlayAndLabelledMapTakeTheChosenDesigns)
{
  Open(SurveyWithDesigns());
  ASSERT_TRUE(Choose("mnuVs1"));
  ASSERT_TRUE(Choose("mnuOSS"));
  for (const char* name : {"design1", "design2", "design6"}) {
    EXPECT_TRUE(Control<QAbstractButton>("overlayChooser", name).isChecked()) << name;
  }
  EXPECT_EQ(Window("overlayChooser")->findChild<QWidget*>("design3"), nullptr);
  Click("overlayChooser", "design2");
  Click("overlayChooser", "design6");
  Click("overlayChooser", "overlay");
  EXPECT_EQ(Only<DotMark>(Graphics().Graph().Shown.Picture).size(), 102U);  // 100 sites and two of design 1
  EXPECT_FALSE(Shown("frmSvyGraph", "Frame3"));

  ASSERT_TRUE(Choose("mnuOSS"));
  Click("overlayChooser", "labelledMap");
  EXPECT_EQ(Only<TextMark>(Graphics().Graph().Shown.Picture).size(), 5U);
  ASSERT_TRUE(Choose("mnuOSS"));
  EXPECT_FALSE(Control("overlayChooser", "overlay").isEnabled());
  ASSERT_TRUE(Choose("mnuGrid"));  // a plot without designs to lay over it
  EXPECT_EQ(Window("overlayChooser"), nullptr);
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

TEST_F(FrmSvyGraph, LegendKeepsWhatItLoaded)
{
  Open(SurveyWithDesigns());
  ASSERT_TRUE(Choose("mnuVs1"));
  Click("frmSvyGraph", "Command8");
  EXPECT_EQ(Window("frmLegend")->windowTitle(), "ColorScale Legend");
  EXPECT_EQ(Text("frmLegend", "Label1"), "< 1 STD below Signal mean");
  ASSERT_TRUE(Choose("mnuVta"));
  EXPECT_EQ(Text("frmLegend", "Label1"), "< 1 STD below Signal mean");
  Window("frmLegend")->close();
  Settle();
  Click("frmSvyGraph", "Command8");
  EXPECT_EQ(Text("frmLegend", "Label1"), "z1 TA-STD < 0.5");
}

TEST_F(FrmSvyGraph, CompanionsCloseWithIt)
{
  Asked.Answer(true);
  Open(SurveyWithDesigns());
  ASSERT_TRUE(Choose("mnuVs1"));
  Click("frmSvyGraph", "Command8");
  ASSERT_TRUE(Choose("mnuIGC") && Choose("mnuOSS") && Choose("mnuPCT"));
  for (const char* name : {"frmLegend", "frmIGC", "frmPCT", "overlayChooser"}) {
    ASSERT_NE(Window(name), nullptr) << name;
    EXPECT_EQ(Window(name)->parent(), Window("frmSvyGraph")) << name;  // it stays in front of it
  }
  QTest::keyClick(Window("frmSvyGraph"), Qt::Key_Escape);
  Settle();
  for (const char* name : {"frmSvyGraph", "frmLegend", "frmIGC", "frmPCT", "overlayChooser"}) {
    EXPECT_EQ(Window(name), nullptr) << name;
  }
  Shared.Show<frmSvyGraph>();
  EXPECT_EQ(Label("txtTitle"), "Please use the Menu Bar to Select a Graph");
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
