#include "desktop/signal/frm_list.h"

#include "desktop/desktop_fixture.h"
#include "desktop/text_table.h"
#include "support/surveys.h"

#include <QClipboard>
#include <QHeaderView>
#include <QPrinter>
#include <QTableWidget>
#include <gmock/gmock.h>

namespace veln {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// A record whose sites 9, 10 and 101 are outliers, with the values that the list is to show.
SurveyState ThreeOutliers(int signals)
{
  SurveyState state = DecorrelatedSurvey(GridSurvey(12, 10, signals));
  const auto mark = [&state](std::size_t site, double x, double s1, double z1) {
    state.SiteStatus[site - 1] = site_status::Outlier;
    state.CoordX[site - 1] = x;
    state.CoordY[site - 1] = 3756789.123456;
    state.Signal1[site - 1] = s1;
    state.Decorr1[site - 1] = z1;
    if (state.SignalCount == 2) {
      state.Signal2[site - 1] = 9.5;
      state.Decorr2[site - 1] = 4;
    }
  };
  mark(9, 512345, 100.25, -3);
  mark(10, 512345.5, 99.1234, 7.5);
  mark(101, 9, 8, 0);
  state.SiteStatus[50] = site_status::Masked;
  return state;
}

class FrmList : public DesktopTest {
 protected:
  void SetUp() override { Open(2); }

  void Open(int signals)
  {
    Set(ThreeOutliers(signals));
    Shared.Show<frmList>();
  }

  static QTableWidget& Grid() { return Control<QTableWidget>("frmList", "OutGrid"); }

  static void ClickHeading(int column)
  {
    QHeaderView* header = Grid().horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      {header->sectionViewportPosition(column) + 5, header->height() / 2});
  }

  static std::vector<std::string> Column(std::size_t column)
  {
    std::vector<std::string> cells;
    for (const auto& row : ReadTextTable(Grid()).Rows) {
      cells.push_back(row[column]);
    }
    return cells;
  }

  static void Choose(const char* entry) { Window("frmList")->findChild<QAction*>(entry)->trigger(); }
};

TEST_F(FrmList, ShowsTheOutliersInSurveyOrder)
{
  const TextTable table = ReadTextTable(Grid());
  EXPECT_THAT(table.Headings, ElementsAre("Site ID", "X Coord", "Y Coord", "Sig 1", "Sig 2", "Abs(STD)"));
  ASSERT_EQ(table.Rows.size(), 3U);
  EXPECT_THAT(table.Rows[0], ElementsAre("9", "512345.0", "3756789.12346", "100.25", "9.50", "5.000"));
  EXPECT_THAT(table.Rows[1], ElementsAre("10", "512345.5", "3756789.12346", "99.123", "9.50", "8.500"));
  EXPECT_EQ(table.Rows[2][0], "101");
}

TEST_F(FrmList, OneSignalHasNoSecondColumn)
{
  Choose("mnuDone");
  Settle();
  EXPECT_EQ(Window("frmList"), nullptr);
  Open(1);
  const TextTable table = ReadTextTable(Grid());
  EXPECT_THAT(table.Headings, ElementsAre("Site ID", "X Coord", "Y Coord", "Sig 1", "Abs(STD)"));
  EXPECT_THAT(Column(4), ElementsAre("3.000", "7.500", "0.000"));
}

TEST_F(FrmList, ClickOnAHeadingSortsByItsNumbers)
{
  ClickHeading(3);
  EXPECT_THAT(Column(3), ElementsAre("8.00", "99.123", "100.25"));
  ClickHeading(3);
  EXPECT_THAT(Column(3), ElementsAre("100.25", "99.123", "8.00"));
  ClickHeading(0);
  EXPECT_THAT(Column(0), ElementsAre("9", "10", "101"));
}

TEST_F(FrmList, CopiesAsTabSeparatedText)
{
  QTest::keyClick(&Grid(), Qt::Key_C, Qt::ControlModifier);
  const std::string all = QGuiApplication::clipboard()->text().toStdString();
  EXPECT_THAT(all, StartsWith("Site ID\tX Coord\tY Coord\tSig 1\tSig 2\tAbs(STD)\n"
                              "9\t512345.0\t3756789.12346\t100.25\t9.50\t5.000\n10\t"));
  Grid().selectRow(1);
  QTest::keyClick(&Grid(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
            "Site ID\tX Coord\tY Coord\tSig 1\tSig 2\tAbs(STD)\n"
            "10\t512345.5\t3756789.12346\t99.123\t9.50\t8.500\n");
}

TEST_F(FrmList, PrintsToAFileAndTellsAFailure)
{
  QString file = QString::fromStdString((Directory / "list.pdf").string());
  Shared.ChoosePrinter = [&file](QPrinter& printer, QWidget*) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return true;
  };
  Choose("mnuPrint");
  EXPECT_THAT(ReadText(Directory / "list.pdf"), StartsWith("%PDF-"));
  EXPECT_TRUE(Asked.Said.empty());
  file = QString::fromStdString((Directory / "nowhere" / "list.pdf").string());
  Choose("mnuPrint");
  EXPECT_EQ(Asked.Said.size(), 1U);
}

TEST_F(FrmList, CancelledPrintDoesAndSaysNothing)
{
  Shared.ChoosePrinter = [](QPrinter&, QWidget*) { return false; };
  Choose("mnuPrint");
  EXPECT_TRUE(Asked.Said.empty());
}

TEST_F(FrmList, SnapshotOutlivesAnAcceptance)
{
  Set(AcceptedSurvey(GridSurvey(10, 10)));
  EXPECT_THAT(Column(0), ElementsAre("9", "10", "101"));
  QTest::keyClick(Window("frmList"), Qt::Key_Escape);
  EXPECT_EQ(Window("frmList"), nullptr);
}

}  // namespace
}  // namespace veln
