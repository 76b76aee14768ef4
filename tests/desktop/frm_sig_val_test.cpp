#include "desktop/signal/frm_sig_val.h"

#include "desktop/desktop_fixture.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "support/surveys.h"

#include <QAbstractButton>

namespace veln {
namespace {

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
  EXPECT_THAT(Text("frmSigVal", "Option2"), HasSubstr("mask all outliers"));
  for (const char* name : {"Check2", "ChkEB1", "LblRC", "Label2", "OptEB1", "OptEB2"}) {
    EXPECT_FALSE(Enabled(name)) << name;
  }
  EXPECT_EQ(Text("frmSigVal", "LblRC"), "Row Count = n/a");
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
  EXPECT_FALSE(Enabled("Option1") || Chosen("Option1") || Enabled("Check2") || Enabled("ChkEB1"));
  EXPECT_TRUE(Chosen("Option2"));
  EXPECT_EQ(Text("frmSigVal", "Command2"), "Accept Configuration");
  QTest::keyClick(Window("frmSigVal"), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Window("frmSigVal"), nullptr);
  EXPECT_TRUE(std::filesystem::exists(Directory / "data" / "farm" / "ab12info.txt"));
  EXPECT_TRUE(Shared.State.Menu.IsEnabled(MenuEntry::mnuVPOF));
}

TEST_F(FrmSigVal, DeletionGoesBackToDecorrelation)
{
  Open(WithOutliers(TransectSurvey(5, 20)));
  Click("frmSigVal", "Command2");
  EXPECT_EQ(Window("frmSigVal"), nullptr);
  EXPECT_EQ(Shared.State.SurveySize, 98);
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
  EXPECT_TRUE(Shared.State.Algorithms == (AlgorithmFacts{AlgorithmState::Invoked, AlgorithmState::Invoked}));
  EXPECT_TRUE(std::filesystem::exists(Directory / "data" / "farm" / "ab12tstd.std"));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace veln
