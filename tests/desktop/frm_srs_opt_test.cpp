#include "desktop/design/frm_srs_opt.h"

#include "desktop/design_windows.h"

#include <QClipboard>
#include <QTableWidget>

namespace veln {
namespace {

/// Scores of a limited selection of two strata: the best, 1.2, in stratum 2 at 0.90, so that the limit is
/// 1.32; 1.32 itself is not acceptable.
SelectionScores TwoStrata()
{
  SelectionScores scores{{2, SelectionScope::Limited}, {}};
  scores.optval[0] = {std::nullopt, 1.5, std::nullopt, 1.32, std::nullopt, 1.3199, std::nullopt};
  scores.optval[1] = {std::nullopt, 1.2, std::nullopt, std::nullopt, std::nullopt, 12.3456, std::nullopt};
  return scores;
}

class FrmSrsOpt : public DesignWindows {
 protected:
  void ShowScores(const SelectionScores& scores)
  {
    Shared.ShowWith<frmSRSOpt>([&](QWidget* main) { return new frmSRSOpt(Shared, main, scores); });
    Settle();
  }

  static QTableWidget& Grid() { return Control<QTableWidget>("frmSRSOpt", "FGopt"); }
  static bool UseIsOpen() { return Control("frmSRSOpt", "useSettings").isEnabled(); }
  static void ClickCell(int row, int column)
  {
    const QRect place = Grid().visualItemRect(Grid().item(row, column));
    QTest::mouseClick(Grid().viewport(), Qt::LeftButton, {}, place.center());
  }
};

TEST_F(FrmSrsOpt, BestAndAcceptableScoresAreMarked)
{
  Open(20, 400);
  ShowScores(TwoStrata());
  EXPECT_EQ(Text("frmSRSOpt", "lblBest"),
            "The best design was generated using strata  2 and a D_Factor of  .9");
  EXPECT_EQ(Text("frmSRSOpt", "lblAccpt"), "There appear to be  2 acceptable designs.");
  EXPECT_EQ(Grid().verticalHeaderItem(8)->text(), "Strata 9");
  EXPECT_EQ(Grid().horizontalHeaderItem(6)->text(), "F= 1.15");
  std::string cells;
  for (int row = 0; row < 2; ++row) {
    for (int column = 1; column < 7; column += 2) {
      const QTableWidgetItem& cell = *Grid().item(row, column);
      cells += cell.text().toStdString() + (cell.font().bold() ? "b" : "") +
               (cell.background() == QBrush() ? "" : "*") + " ";
    }
  }
  EXPECT_EQ(cells, "1.500 1.320 1.320b 1.200b*  12.346 ");
  const QBrush tone = Grid().item(1, 1)->background();
  QPalette dark = Grid().palette();
  dark.setColor(QPalette::Base, Qt::black);
  Window("frmSRSOpt")->setPalette(dark);
  EXPECT_NE(Grid().item(1, 1)->background(), tone);
  ShowScores({});
  EXPECT_EQ(Text("frmSRSOpt", "lblBest"), "No combination of strata and D_Factor has a usable score.");
}

TEST_F(FrmSrsOpt, ChosenSettingsGoToTheDesignWindow)
{
  Open(20, 400);
  ShowScores(TwoStrata());
  EXPECT_FALSE(UseIsOpen());
  ClickCell(1, 3);
  EXPECT_FALSE(UseIsOpen()) << "a cell without a score";
  ClickCell(1, 1);
  EXPECT_TRUE(UseIsOpen());
  Click("frmSRS", "Command2");
  EXPECT_FALSE(UseIsOpen()) << "a design waits for a decision";
  Click("frmSRS", "Command5");
  Click("frmSRSOpt", "useSettings");
  EXPECT_EQ(Text("frmSRS", "Text1"), "0.90");
  EXPECT_TRUE(Shown("frmSRS", "Text1"));
  EXPECT_TRUE(Form().Check3);
  EXPECT_EQ(Form().Parsing, (Stratum{2, 1}));
  EXPECT_EQ(Window("frmParse"), nullptr);
  EXPECT_THAT(Asked.Said,
              ElementsAre("inform: Note: Parsing will be in effect for the next SRS design only."));
}

TEST_F(FrmSrsOpt, WithOneStratumTheDFactorAloneIsSet)
{
  Open(5, 100);
  SelectionScores scores{{1, SelectionScope::Full}, {}};
  scores.optval[0][6] = 1.1;
  ShowScores(scores);
  ClickCell(0, 6);
  Click("frmSRSOpt", "useSettings");
  EXPECT_EQ(Text("frmSRS", "Text1"), "1.15");
  EXPECT_FALSE(Form().Check3);
  EXPECT_TRUE(Asked.Said.empty());
}

TEST_F(FrmSrsOpt, TableIsCopiedAndSaved)
{
  Open(20, 400);
  ShowScores(TwoStrata());
  QTest::keyClick(&Grid(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(),
              HasSubstr("\tF= 1.15\nStrata 1\t\t1.500\t\t1.320\t\t1.320\t\nStrata 2\t"));
  std::filesystem::path target = Project / "scores.csv";
  Shared.ChooseFile = [&target](const QString&, const std::filesystem::path& offered, const QString&) {
    EXPECT_EQ(offered.filename(), "ab12ads.csv");
    return std::optional(target);
  };
  Click("frmSRSOpt", "saveScores");
  EXPECT_THAT(ReadText(target), StartsWith(",F= 0.85,F= 0.90,F= 0.95,F= 1.00,F= 1.05,F= 1.10,F= 1.15\r\n"
                                           "Strata 1,,1.500,,1.320,,1.320,\r\n"));
  target = Project;
  Click("frmSRSOpt", "saveScores");
  EXPECT_THAT(Asked.Said, ElementsAre(StartsWith("warn: ")));
}

TEST_F(FrmSrsOpt, SelectionEndsWithItsResultsAndPlainSettings)
{
  Open(20, 400);
  Click("frmSRS", "Option1");
  Asked.Answer(false);
  Pick("frmSRS", "mnuSRSAutoLimited");
  EXPECT_EQ(Window("frmSRSOpt"), nullptr);
  Asked.Answer(true);
  Pick("frmSRS", "mnuSRSAutoLimited");
  int filled = 0;
  for (int row = 0; row < 9; ++row) {
    for (int column = 0; column < 7; ++column) {
      filled += Grid().item(row, column)->text().isEmpty() ? 0 : 1;
    }
  }
  EXPECT_EQ(filled, 6);
  EXPECT_EQ(Text("frmSRS", "Text1"), "1.00");
  EXPECT_FALSE(Shown("frmSRS", "Stop"));
  Pick("frmSRSOpt", "mnuSRSOReturn");
  EXPECT_EQ(Window("frmSRSOpt"), nullptr);
  EXPECT_NE(Window("frmSRS"), nullptr);
}

}  // namespace
}  // namespace veln
