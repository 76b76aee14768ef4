// The windows beside the graphics window: options, coordinate translation, and the sample site map.
#include "desktop/design/frm_srs.h"
#include "desktop/graphics/frm_site_map.h"
#include "desktop/graphics_fixture.h"
#include "graphics/site_map.h"

#include <QPrinter>
#include <QScrollBar>

namespace veln {
namespace {

class Companions : public GraphicsTest {
 protected:
  static QAbstractButton& Button(const char* window, const char* name)
  {
    return Control<QAbstractButton>(window, name);
  }
  static bool IsBlue(const QWidget& widget)
  {
    return widget.palette().color(QPalette::Active, QPalette::WindowText) == QColor(0, 0, 255);
  }
};

TEST_F(Companions, OptionsComeFromTheWindowAndGoBackOnInitialize)
{
  Open(SurveyWithDesigns());
  ASSERT_TRUE(Choose("mnuIGC"));
  const char* const igc = "frmIGC";
  for (const char* on : {"Check4", "Check5", "optColor1", "optDP2"}) {
    EXPECT_TRUE(Button(igc, on).isChecked() && IsBlue(Button(igc, on))) << on;
  }
  for (const char* off : {"Option1", "Option2", "Check1", "optGray", "optDP5"}) {
    EXPECT_FALSE(Button(igc, off).isChecked() || IsBlue(Button(igc, off))) << off;
  }
  EXPECT_FALSE(Shown(igc, "Check2") || Shown(igc, "Check3"));
  EXPECT_EQ(Control<QLineEdit>(igc, "Text2").palette().color(QPalette::Base), QColor(255, 239, 0));
  EXPECT_EQ(Control<QLineEdit>(igc, "Text17").palette().color(QPalette::Base), QColor(0, 0, 0));

  Click(igc, "Check1");
  Click(igc, "Command2");
  EXPECT_THAT(Asked.Said.back(), StartsWith("inform: Please select the Transect Direction"));
  for (const char* choice : {"Check1", "optGray", "optDP4", "Check4"}) {
    Click(igc, choice);
  }
  QTest::keyClick(&Control<QScrollBar>(igc, "HScroll1"), Qt::Key_End);
  EXPECT_EQ(Text(igc, "Text1"), "10");
  EXPECT_FALSE(IsBlue(Button(igc, "Check4")));
  EXPECT_EQ(Graphics().Graph().Options, PlotOptions{}) << "nothing is applied yet";
  Click(igc, "Command2");
  PlotOptions expected;
  expected.PaletteChoice = expected.MapPalette = GreyPalette;
  expected.DecimalPlaces = 4;
  expected.SymbolSize = 10;
  expected.HighlightMasked = false;
  EXPECT_EQ(Graphics().Graph().Options, expected);

  ASSERT_TRUE(Choose("mnuIGC"));
  EXPECT_TRUE(Button(igc, "Check4").isChecked());  // highlights are not remembered, the rest is
  EXPECT_TRUE(Button(igc, "optGray").isChecked() && Button(igc, "optDP4").isChecked());
  Click(igc, "optColor2");
  Click(igc, "Command1");
  EXPECT_EQ(Graphics().Graph().Options, expected);
}

TEST_F(Companions, TranslationAsksFirstAndClearsThePlot)
{
  Open(SurveyWithDesigns());
  ASSERT_TRUE(Choose("mnuSs1x"));
  const std::vector<double> x = Shared.State.CoordX;
  Asked.Answer(false);
  ASSERT_TRUE(Choose("mnuPCT"));
  EXPECT_EQ(Label("txtTitle"), "EMv versus X");
  EXPECT_EQ(Window("frmPCT"), nullptr);
  Asked.Answer(true);
  ASSERT_TRUE(Choose("mnuPCT"));
  EXPECT_EQ(Label("txtTitle") + Label("txtMinX") + Label("txtMaxY"), "");
  EXPECT_FALSE(Shown("frmSvyGraph", "Frame2"));
  const char* const pct = "frmPCT";
  EXPECT_FALSE(Shown(pct, "HScroll1") || Shown(pct, "Command2"));
  Click(pct, "Option2");
  EXPECT_TRUE(IsBlue(Button(pct, "Option2")) && Shown(pct, "HScroll1") && Shown(pct, "Command2"));
  QTest::keyClick(&Control<QScrollBar>(pct, "HScroll1"), Qt::Key_PageUp);
  EXPECT_EQ(Text(pct, "Text1"), "15");
  Click(pct, "Option1");
  EXPECT_FALSE(Shown(pct, "HScroll1") || IsBlue(Button(pct, "Option2")));
  Click(pct, "Command2");
  EXPECT_EQ(Window(pct), nullptr);
  EXPECT_EQ(Shared.State.CoordY, x);
  EXPECT_EQ(Label("txtTitle"), "Translation Completed...");
  EXPECT_FALSE(Entry("northArrow").isEnabled());
}

TEST_F(Companions, NoTranslationWhileADesignWaitsForItsDecision)
{
  Open(AcceptedSurvey(GridSurvey(10, 10)));
  Shared.Show<frmSRS>();
  QTest::keyClick(Window("frmSRS"), Qt::Key_Return);
  Settle();
  ASSERT_TRUE(Shared.Find<frmSRS>()->Form().Finished);
  const std::vector<double> x = Shared.State.CoordX;
  Asked.Answer(true);
  ASSERT_TRUE(Choose("mnuPCT"));
  Click("frmPCT", "Option3");
  Click("frmPCT", "Command2");
  EXPECT_EQ(Asked.Said.back(), "warn: Please save or discard the current sample design first.");
  EXPECT_NE(Window("frmPCT"), nullptr);
  EXPECT_EQ(Shared.State.CoordX, x);
}

class FrmSiteMap : public Companions {
 protected:
  static bool Choose(const char* name) { return Companions::Choose(name, "frmSiteMap"); }
};

TEST_F(FrmSiteMap, OffersTheDesignsThatExist)
{
  SurveyState state = SurveyWithDesigns();
  state.ManualDesignDone = false;
  Set(state);
  Shared.Show<frmSiteMap>();
  std::string entries;
  for (const char* name : {"mnusubSRS", "mnusubRS1", "mnusubRS2", "mnusubRS3", "mnusubRS5", "mnusubUGD"}) {
    entries += Entry(name, "frmSiteMap").isEnabled() ? '1' : '0';
  }
  EXPECT_EQ(entries, "111000");
  EXPECT_EQ(Window("frmSiteMap")->windowTitle(), " Sample Site Map Display");
  EXPECT_EQ(Text("frmSiteMap", "lblSMT"), "");
  ASSERT_TRUE(Choose("mnusubRS2"));
  EXPECT_EQ(Text("frmSiteMap", "lblSMT"), "VELN SRS Sample Design #2");
  EXPECT_FALSE(Choose("mnusubUGD"));
  ASSERT_TRUE(Choose("mnusubRx"));
  EXPECT_EQ(Window("frmSiteMap"), nullptr);
  Set(SurveyWithDesigns());
  Shared.Show<frmSiteMap>();
  ASSERT_TRUE(Choose("mnusubUGD"));
  EXPECT_EQ(Text("frmSiteMap", "lblSMT"), "User Generated Sample Design");
}

TEST_F(FrmSiteMap, BitmapsAreOfferedInTheDirectoryOfTheLastOne)
{
  Set(SurveyWithDesigns());
  Shared.Show<frmSiteMap>();
  ASSERT_TRUE(Choose("mnusubRS1"));
  std::filesystem::path offered;
  std::filesystem::path chosen;
  Shared.ChooseFile = [&](const QString&, const std::filesystem::path& file, const QString&) {
    offered = file;
    return chosen.empty() ? std::nullopt : std::optional(chosen);
  };
  ASSERT_TRUE(Choose("mnusubSaveAsBit"));
  EXPECT_EQ(Asked.Said.back(), "warn: No file name was given.");
  EXPECT_EQ(offered, Directory / "data" / "farm" / "ab12map.bmp");
  std::filesystem::create_directory(Directory / "bitmap");
  chosen = Directory / "bitmap" / "one.bmp";
  ASSERT_TRUE(Choose("mnusubSaveAsBit"));
  EXPECT_EQ(offered, Directory / "bitmap" / "ab12map.bmp");
  const QImage bmp(QString::fromStdString((Directory / "bitmap" / "one.bmp").string()));
  EXPECT_EQ(bmp.size(), QSize(433, 433));
  // Site 11 lies in the 1st row: its heavy dot is light blue.
  const DrawPoint site = Only<DotMark>(DrawSiteMap(Shared.State, 1)).at(100).At;
  EXPECT_EQ(bmp.pixelColor(static_cast<int>(site.X * 433), static_cast<int>(site.Y * 433)),
            QColor(0, 0, 255));
}

TEST_F(FrmSiteMap, TellsWhenThePageIsSpooled)
{
  Set(SurveyWithDesigns());
  Shared.Show<frmSiteMap>();
  Shared.ChoosePrinter = [](QPrinter&, QWidget*) { return false; };
  ASSERT_TRUE(Choose("mnusubPrintD"));
  EXPECT_TRUE(Asked.Said.empty());
  Shared.ChoosePrinter = [this](QPrinter& printer, QWidget*) {
    printer.setOutputFileName(QString::fromStdString((Directory / "map.pdf").string()));
    return true;
  };
  ASSERT_TRUE(Choose("mnusubRS1"));
  ASSERT_TRUE(Choose("mnusubPrintD"));
  EXPECT_THAT(Asked.Said, ElementsAre("inform: An image of the current sampling design has been spooled to "
                                      "your printer..."));
  EXPECT_TRUE(ReadText(Directory / "map.pdf").starts_with("%PDF"));
}

}  // namespace
}  // namespace veln
