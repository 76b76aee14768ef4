#include "desktop/signal/frm_sig_val.h"

#include "desktop/desktop_fixture.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "support/surveys.h"

#include <QAbstractButton>
#include <gmock/gmock.h>

#include <algorithm>

namespace veln {
namespace {

using testing::Contains;
using testing::HasSubstr;

/// Adds two sites that lie far out: the last one and the one before it.
RawSurvey WithOutliers(RawSurvey survey)
{
  survey.Signal1.back() = 2000;
  survey.Signal1[survey.Signal1.size() - 2] = -2000;
  return survey;
}

class FrmSigVal : public DesktopTest {
 protected:
  void SetUp() override { std::filesystem::create_directories(Directory / "data" / "farm"); }

  void Open(RawSurvey survey)
  {
    Set(DecorrelatedSurvey(std::move(survey)));
    Shared.Show<frmSigVal>();
  }

  static QAbstractButton& Button(const char* name) { return Control<QAbstractButton>("frmSigVal", name); }
  static bool Enabled(const char* name) { return Control("frmSigVal", name).isEnabled(); }
  static bool Chosen(const char* name)
  {
    const QColor colour = Control("frmSigVal", name).palette().color(QPalette::Active, QPalette::WindowText);
    EXPECT_EQ(colour, Button(name).isChecked() ? QColor(0, 0, 255) : QColor(0, 0, 0)) << name;
    return Button(name).isChecked();
  }
};

TEST_F(FrmSigVal, OutliersSelectDeletion)
{
  Open(WithOutliers(TransectSurvey(5, 20)));
  EXPECT_TRUE(Chosen("Option1") && Enabled("Option1"));
  EXPECT_FALSE(Chosen("Option2"));
  EXPECT_EQ(Text("frmSigVal", "Option2"), "mask all outliers and accept current signal data configuration");
  EXPECT_EQ(Button("Option2").toolTip(),
            " indicates that all outlier sites should be masked (but not deleted) ");
  EXPECT_EQ(Text("frmSigVal", "Command2"), "Invoke Validation");
  for (const char* name : {"Check2", "ChkEB1", "LblRC", "Label2", "OptEB1", "OptEB2"}) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  EXPECT_EQ(Text("frmSigVal", "LblRC"), "Row Count = n/a");
  EXPECT_FALSE(Shown("frmSigVal", "Label1"));
}

TEST_F(FrmSigVal, ArrowKeysChooseBetweenOptions)
{
  Open(WithOutliers(TransectSurvey(5, 20)));
  QApplication::setActiveWindow(Window("frmSigVal"));
  Button("Option1").setFocus();
  QTest::keyClick(&Button("Option1"), Qt::Key_Down);
  EXPECT_TRUE(Chosen("Option2") && !Chosen("Option1"));
  EXPECT_TRUE(Enabled("Check2")) << "the form follows the keys";
}

TEST_F(FrmSigVal, GridWithoutOutliersCanOnlyBeAccepted)
{
  Open(GridSurvey(10, 10));
  EXPECT_FALSE(Enabled("Option1") || Chosen("Option1"));
  EXPECT_TRUE(Chosen("Option2"));
  EXPECT_EQ(Text("frmSigVal", "Option2"),
            "no outliers detected:  current signal data configuration can be accepted");
  EXPECT_EQ(Text("frmSigVal", "Command2"), "Accept Configuration");
  EXPECT_FALSE(Enabled("Check2") || Enabled("ChkEB1"));
  QTest::keyClick(Window("frmSigVal"), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Window("frmSigVal"), nullptr);
  EXPECT_EQ(Shared.State.Algorithms.LblEB, "n/a");
  EXPECT_EQ(Shared.State.Algorithms.Label21, "n/a");
  EXPECT_TRUE(std::filesystem::exists(Directory / "data" / "farm" / "ab12info.txt"));
  EXPECT_TRUE(Shared.State.Menu.IsEnabled(MenuEntry::mnuVPOF));
  EXPECT_FALSE(Shared.State.Menu.IsEnabled(MenuEntry::mnuSigV));
}

TEST_F(FrmSigVal, AcceptanceOpensTheTransectOptionsAndDeletionClosesThem)
{
  Open(WithOutliers(TransectSurvey(5, 20)));
  Click("frmSigVal", "Option2");
  EXPECT_TRUE(Chosen("Option2") && Enabled("Check2") && Enabled("ChkEB1") && Enabled("Label2"));
  EXPECT_EQ(Text("frmSigVal", "LblRC"), "Row Count =  5");
  EXPECT_EQ(Text("frmSigVal", "Command2"), "Invoke Validation");
  EXPECT_FALSE(Enabled("OptEB1"));
  Click("frmSigVal", "Check2");
  EXPECT_TRUE(Chosen("Check2") && Shown("frmSigVal", "Label1"));
  Click("frmSigVal", "ChkEB1");
  Click("frmSigVal", "Option1");
  EXPECT_TRUE(Chosen("Option1") && Chosen("Check2"));
  EXPECT_FALSE(Enabled("Check2") || Enabled("ChkEB1") || Chosen("ChkEB1") || Chosen("OptEB1"));
  Click("frmSigVal", "Option2");
  EXPECT_TRUE(Chosen("Check2") && Enabled("Check2"));
  EXPECT_FALSE(Chosen("Option1"));
}

TEST_F(FrmSigVal, EdgeBufferingSelectsAndClearsItsOptions)
{
  Open(TransectSurvey(5, 20));
  Click("frmSigVal", "ChkEB1");
  EXPECT_TRUE(Chosen("ChkEB1") && Chosen("OptEB1") && Enabled("OptEB1") && Enabled("OptEB2"));
  Click("frmSigVal", "OptEB2");
  EXPECT_TRUE(Chosen("OptEB2"));
  EXPECT_FALSE(Chosen("OptEB1"));
  Click("frmSigVal", "OptEB2");
  EXPECT_TRUE(Chosen("OptEB2")) << "a second click clears no option";
  Click("frmSigVal", "ChkEB1");
  EXPECT_FALSE(Chosen("OptEB1") || Chosen("OptEB2") || Enabled("OptEB1") || Enabled("OptEB2"));
}

TEST_F(FrmSigVal, DeletionGoesBackToDecorrelation)
{
  Open(WithOutliers(TransectSurvey(5, 20)));
  Click("frmSigVal", "Command2");
  EXPECT_EQ(Window("frmSigVal"), nullptr);
  EXPECT_EQ(Shared.State.SurveySize, 98);
  EXPECT_EQ(Shared.State.Decorrelation.LblDcnt, "2");
  EXPECT_EQ(Shared.State.Decorrelation.LblVcnt, "1");
  EXPECT_EQ(Shared.State.Decorrelation.Lblostdcnt, "2") << "until the decorrelation has run again";
  ASSERT_NE(Window("frmSigDecorr"), nullptr);
  EXPECT_FALSE(Shown("frmSigDecorr", "Frame2"));
  EXPECT_TRUE(Asked.Said.empty());
}

TEST_F(FrmSigVal, DeletionBringsAnOpenDecorrelationForwardWithItsOldResults)
{
  Set(ImportedSurvey(WithOutliers(TransectSurvey(5, 20))));
  Shared.Show<frmSigDecorr>();
  Click("frmSigDecorr", "Command1");
  Shared.Show<frmSigVal>();
  Click("frmSigVal", "Command2");
  EXPECT_EQ(Text("frmSigDecorr", "Label4"), "2");
  EXPECT_EQ(Text("frmSigDecorr", "Label5"), "0");
  EXPECT_EQ(Text("frmSigDecorr", "Command2"), "Finished");
}

TEST_F(FrmSigVal, AcceptanceRunsTheOptionsAsked)
{
  Open(WithOutliers(TransectSurvey(5, 20)));
  for (const char* choice : {"Option2", "ChkEB1", "OptEB2", "Check2"}) {
    Click("frmSigVal", choice);
  }
  Asked.Answer(true);
  Click("frmSigVal", "Command2");
  EXPECT_EQ(Window("frmSigVal"), nullptr);
  EXPECT_EQ(Window("frmSigDecorr"), nullptr);
  EXPECT_EQ(Shared.State.Algorithms.LblEB, "invoked");
  EXPECT_EQ(Shared.State.Algorithms.Label21, "invoked");
  EXPECT_TRUE(Shared.State.TransitionDone);
  EXPECT_TRUE(std::filesystem::exists(Directory / "data" / "farm" / "ab12tstd.std"));
  EXPECT_EQ(std::ranges::count(Shared.State.SiteStatus, site_status::Outlier), 0);
  EXPECT_THAT(Asked.Said, Contains(HasSubstr("sites were masked by the edge buffering algorithm.")));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(FrmSigVal, AcceptanceWithoutOptionsSaysNone)
{
  Open(TransectSurvey(5, 20));
  std::filesystem::remove_all(Directory / "data" / "farm");
  Click("frmSigVal", "Command2");
  EXPECT_EQ(Shared.State.Algorithms.LblEB, "none");
  EXPECT_EQ(Shared.State.Algorithms.Label21, "none");
  EXPECT_THAT(Asked.Said, Contains(HasSubstr("could not create survey information file")));
}

TEST_F(FrmSigVal, EscLeavesEverySiteAndAcceptanceElsewhereCloses)
{
  Open(WithOutliers(GridSurvey(10, 10)));
  const SurveyState before = Shared.State;
  Click("frmSigVal", "Option2");
  QTest::keyClick(Window("frmSigVal"), Qt::Key_Escape);
  Settle();
  EXPECT_TRUE(Shared.State == before);
  Shared.Show<frmSigVal>();
  Set(AcceptedSurvey(GridSurvey(10, 10)));
  EXPECT_EQ(Window("frmSigVal"), nullptr);
}

}  // namespace
}  // namespace veln
