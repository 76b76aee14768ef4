#include "desktop/signal/frm_list.h"

#include "desktop/desktop_fixture.h"
#include "desktop/parts/text_table.h"
#include "support/surveys.h"

#include <QClipboard>
#include <QHeaderView>
#include <QPrinter>
#include <QTableWidget>

namespace veln {
namespace {

/// A record whose sites 9, 10 and 101 are outliers, with the values that the list is to show.
SurveyState ThreeOutliers()
{
  SurveyState state = DecorrelatedSurvey(GridSurvey(12, 10));
  const auto mark = [&state](std::size_t site, double x, double s1, double z1) {
    state.SiteStatus[site - 1] = site_status::Outlier;
    state.CoordX[site - 1] = x;
    state.CoordY[site - 1] = 3756789.123456;
    state.Signal1[site - 1] = s1;
    state.Decorr1[site - 1] = z1;
    state.Signal2[site - 1] = 9.5;
    state.Decorr2[site - 1] = 4;
  };
  mark(9, 512345, 100.25, -3);
  mark(10, 512345.5, 99.1234, 7.5);
  mark(101, 9, 8, 0);
  return state;
}

class FrmList : public DesktopTest {
 protected:
  void SetUp() override
  {
    Set(ThreeOutliers());
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
  const auto copied = [] {
    QTest::keyClick(&Grid(), Qt::Key_C, Qt::ControlModifier);
    return QGuiApplication::clipboard()->text().toStdString();
  };
  EXPECT_THAT(copied(), HasSubstr("\n9\t512345.0\t3756789.12346\t100.25\t9.50\t5.000\n10\t"));
  Grid().selectRow(1);
  EXPECT_EQ(copied(),
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

TEST_F(FrmList, SnapshotOutlivesAnAcceptance)
{
  Set(AcceptedSurvey(GridSurvey(10, 10)));
  EXPECT_THAT(Column(0), ElementsAre("9", "10", "101"));
  QTest::keyClick(Window("frmList"), Qt::Key_Escape);
  EXPECT_EQ(Window("frmList"), nullptr);
}

}  // namespace
}  // namespace veln
