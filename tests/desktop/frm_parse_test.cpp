#include "desktop/design/frm_parse.h"

#include "desktop/controls.h"
#include "desktop/design_windows.h"

#include <QPlainTextEdit>
#include <QPrinter>
#include <gmock/gmock.h>

namespace veln {
namespace {

using testing::ElementsAre;

using FrmParse = DesignWindows;

TEST_F(FrmParse, StrataOfTheSurveyAreOffered)
{
  for (const auto& [rows, strata] : {std::pair{20, 2}, std::pair{30, 3}, std::pair{70, 5}}) {
    Open(rows, 100);
    Click("frmSRS", "Check3");
    EXPECT_EQ(Text("frmParse", "Label2"), " " + std::to_string(strata) + " distinct strata");
    for (int option = 1; option <= 9; ++option) {
      const auto& button = Control<QAbstractButton>("frmParse", ("Option" + std::to_string(option)).c_str());
      EXPECT_EQ(button.isEnabled(), option <= strata) << option;
      EXPECT_EQ(button.isChecked(), option == 1) << option;
    }
    Window("frmSRS")->close();
    Settle();
  }
}

TEST_F(FrmParse, ChoiceHoldsUntilItIsTakenBack)
{
  Open(30, 600);
  Click("frmSRS", "Check3");
  Click("frmParse", "Option3");
  EXPECT_EQ(Form().Parsing, Stratum());
  QTest::keyClick(Window("frmParse"), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Window("frmParse"), nullptr);
  EXPECT_EQ(Form().Parsing, (Stratum{3, 2}));
  EXPECT_TRUE(Form().Check3);
  EXPECT_THAT(Asked.Said,
              ElementsAre("inform: Note: Parsing will be in effect for the next SRS design only."));
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
  dark.setColor(QPalette::Window, QColor(40, 40, 40));
  dark.setColor(QPalette::WindowText, Qt::white);
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
