#include "desktop/design/frm_parse.h"

#include "desktop/design_windows.h"
#include "desktop/parts/controls.h"

#include <QPlainTextEdit>
#include <QPrinter>

namespace veln {
namespace {

using FrmParse = DesignWindows;

TEST_F(FrmParse, ChoiceHoldsUntilItIsTakenBack)
{
  Open(30, 600);
  Click("frmSRS", "Check3");
  EXPECT_EQ(Text("frmParse", "Label2"), " 3 distinct strata");
  EXPECT_TRUE(Control("frmParse", "Option3").isEnabled() && !Control("frmParse", "Option4").isEnabled());
  Click("frmParse", "Option3");
  EXPECT_EQ(Form().Parsing, Stratum());
  QTest::keyClick(Window("frmParse"), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Window("frmParse"), nullptr);
  EXPECT_EQ(Form().Parsing, (Stratum{3, 2}));
  EXPECT_TRUE(Form().Check3);
  // Off by its box, by the window's own control, by Cancel, and by the end of a design.
  Click("frmSRS", "Check3");
  EXPECT_EQ(Form().Parsing, Stratum());
  for (const char* way : {"close", "Command2", "box", "design"}) {
    SCOPED_TRACE(way);
    Click("frmSRS", "Check3");
    ASSERT_NE(Window("frmParse"), nullptr);
    if (std::string(way) == "close") {
      Window("frmParse")->close();
    } else if (std::string(way) == "box") {
      Click("frmSRS", "Check3");
    } else if (std::string(way) == "design") {
      Click("frmSRS", "Command2");
      EXPECT_NE(Window("frmParse"), nullptr);
      Click("frmSRS", "Command5");
    } else {
      Click("frmParse", way);
    }
    Settle();
    EXPECT_EQ(Window("frmParse"), nullptr);
    EXPECT_FALSE(Form().Check3);
    EXPECT_EQ(Form().Parsing, Stratum());
  }
}

TEST_F(FrmParse, ListingShowsTheLevelsAsTheyStoodOnWhitePaper)
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
    EXPECT_EQ(Window("frmDList"), nullptr);
  }
  QApplication::setPalette(desktop);
}

TEST_F(FrmParse, ListingAndScoresPrintAsAPage)
{
  Open(5, 100);
  Click("frmSRS", "Command1");
  Shared.ShowWith<frmSRSOpt>([this](QWidget* main) { return new frmSRSOpt(Shared, main, {}); });
  int pages = 0;
  Shared.ChoosePrinter = [&](QPrinter& printer, QWidget*) {
    printer.setOutputFileName(ToQt((Directory / ("page" + std::to_string(++pages) + ".pdf")).string()));
    return true;
  };
  Pick("frmDList", "mnuPrint");
  Pick("frmSRSOpt", "mnuSRSOpinfo");
  EXPECT_TRUE(ReadText(Directory / "page1.pdf").starts_with("%PDF"));
  EXPECT_TRUE(ReadText(Directory / "page2.pdf").starts_with("%PDF"));
  EXPECT_TRUE(Asked.Said.empty());
}

}  // namespace
}  // namespace veln
