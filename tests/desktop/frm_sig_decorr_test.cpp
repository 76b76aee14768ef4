#include "desktop/signal/frm_sig_decorr.h"

#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

#include <QPushButton>
#include <QScrollBar>

namespace veln {
namespace {

/// 100 sites of one signal, of which two stand 950 and 400 above the mean of the others, 50: about 9.2 and
/// 3.7 deviations above the mean of all. So one is an outlier and one is masked at levels 3.50 and 4.50.
SurveyState TwoFarSites()
{
  RawSurvey survey = GridSurvey(10, 10, 1);
  survey.Signal1[20] = 1000;
  survey.Signal1[70] = 450;
  return ImportedSurvey(survey);
}

class FrmSigDecorr : public DesktopTest {
 protected:
  void SetUp() override
  {
    Set(TwoFarSites());
    Shared.Show<frmSigDecorr>();
  }

  static QScrollBar& Bar(const char* name) { return Control<QScrollBar>("frmSigDecorr", name); }
  static std::string TextOf(const char* name) { return Text("frmSigDecorr", name); }
};

TEST_F(FrmSigDecorr, LevelsHoldEachOtherBack)
{
  QTest::keyClick(&Bar("HScroll1"), Qt::Key_End);
  EXPECT_EQ(Bar("HScroll1").value(), 450);
  EXPECT_EQ(TextOf("Text1"), "4.50");
  EXPECT_THAT(TextOf("Label11"), HasSubstr("Masking STD level can not be set higher"));
  QTest::keyClick(&Bar("HScroll1"), Qt::Key_Left);
  EXPECT_EQ(TextOf("Text1") + TextOf("Label11"), "4.45");
  QTest::keyClick(&Bar("HScroll2"), Qt::Key_Home);
  EXPECT_EQ(TextOf("Text2"), "4.45");
  EXPECT_THAT(TextOf("Label11"), HasSubstr("Outlier STD level can not be set lower"));
}

TEST_F(FrmSigDecorr, RunShowsItsResultsAndTurnsCancelIntoFinished)
{
  EXPECT_FALSE(Shown("frmSigDecorr", "Frame2"));
  EXPECT_EQ(TextOf("Label3"), "n/a");
  QTest::keyClick(Window("frmSigDecorr"), Qt::Key_Return);
  EXPECT_TRUE(Shown("frmSigDecorr", "Frame2") && Shown("frmSigDecorr", "Command3"));
  EXPECT_EQ(TextOf("Label3") + TextOf("Label4") + TextOf("Label5"), "210");
  EXPECT_EQ(Control("frmSigDecorr", "Label3").accessibleName(), "Number of sites above masking STD level 2");
  EXPECT_FALSE(Shown("frmSigDecorr", "Command1"));
  EXPECT_EQ(TextOf("Command2"), "Finished");
  EXPECT_EQ(Control("frmSigDecorr", "Command2").toolTip(), "return to main program menu");
  EXPECT_EQ(Shared.Find<frmSigDecorr>()->Counts().OutlierCount, 1);
  QTest::keyClick(Window("frmSigDecorr"), Qt::Key_Return);
  EXPECT_EQ(Window("frmSigDecorr"), nullptr) << "Enter is Finished now";
}

TEST_F(FrmSigDecorr, BarsStayLiveBehindARunAndKeepTheFocus)
{
  Click("frmSigDecorr", "Command1");
  Bar("HScroll1").setFocus();
  QTest::keyClick(&Bar("HScroll1"), Qt::Key_Right);
  EXPECT_EQ(TextOf("Text1"), "3.55");
  EXPECT_EQ(Window("frmSigDecorr")->focusWidget(), &Bar("HScroll1"));
  EXPECT_EQ(Shared.State.Decorrelation.Levels.Masking, 350);
}

TEST_F(FrmSigDecorr, ReopeningShowsTheLevelsOfTheLastRun)
{
  for (const auto& [masking, outlier] : {std::pair{500, 550}, std::pair{300, 320}}) {
    Bar("HScroll2").setValue(600);
    Bar("HScroll1").setValue(masking);
    Bar("HScroll2").setValue(outlier);
    Click("frmSigDecorr", "Command1");
    Click("frmSigDecorr", "Command2");
    Shared.Show<frmSigDecorr>();
    EXPECT_EQ(std::pair(Bar("HScroll1").value(), Bar("HScroll2").value()), std::pair(masking, outlier));
    EXPECT_EQ(TextOf("Label11"), "");
    EXPECT_FALSE(Shown("frmSigDecorr", "Frame2"));
  }
}

TEST_F(FrmSigDecorr, WithoutOutliersNothingIsToBeListed)
{
  Set(ImportedSurvey(GridSurvey(10, 10)));
  Click("frmSigDecorr", "Command1");
  EXPECT_TRUE(Shown("frmSigDecorr", "Frame2"));
  EXPECT_FALSE(Shown("frmSigDecorr", "Command3"));
}

TEST_F(FrmSigDecorr, ListButtonOpensTheListBesideIt)
{
  Click("frmSigDecorr", "Command1");
  Click("frmSigDecorr", "Command3");
  EXPECT_NE(Window("frmList"), nullptr);
  EXPECT_NE(Window("frmSigDecorr"), nullptr);
}

}  // namespace
}  // namespace veln
