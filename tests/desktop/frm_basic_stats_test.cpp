#include "desktop/survey/frm_basic_stats.h"

#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

#include <QCheckBox>
#include <gmock/gmock.h>

#include <cmath>

namespace veln {
namespace {

using testing::ElementsAre;

class FrmBasicStats : public DesktopTest {
 protected:
  void SetUp() override { Open(ImportedSurvey(GridSurvey(10, 10))); }

  void Open(const SurveyState& state)
  {
    Set(state);
    Shared.Show<frmBasicStats>();
  }

  /// Which of the four boxes can be checked, as in "14".
  static std::string Offered()
  {
    std::string offered;
    for (const char* name : {"Check1", "Check2", "Check3", "Check4"}) {
      auto& box = Control<QCheckBox>("frmBasicStats", name);
      EXPECT_FALSE(box.isChecked()) << name;
      offered += box.isEnabled() ? std::string(1, name[5]) : "";
    }
    return offered;
  }
};

TEST_F(FrmBasicStats, OffersWhatTheSignalsAllow)
{
  EXPECT_EQ(Offered(), "14");
  Click("frmBasicStats", "Command2");
  SurveyState state = ImportedSurvey(GridSurvey(10, 10, 1));
  state.LogTransform = true;
  state.SignalUnits = "dS/m";
  Open(state);
  EXPECT_EQ(Offered(), "23");
  EXPECT_FALSE(Shown("frmBasicStats", "Label2") || Shown("frmBasicStats", "Text2"));
}

TEST_F(FrmBasicStats, ComputeTakesLogarithmsAndRescalesInOneClick)
{
  const double first = Shared.State.Signal1[0];
  Type("frmBasicStats", "Text1", "ln of s1, long");
  Click("frmBasicStats", "Check1");
  Click("frmBasicStats", "Check4");
  EXPECT_EQ(Control("frmBasicStats", "Check4").palette().color(QPalette::Active, QPalette::WindowText),
            QColor(0, 0, 255));
  QTest::keyClick(Window("frmBasicStats"), Qt::Key_Return);
  Settle();
  EXPECT_EQ(Window("frmBasicStats"), nullptr);
  EXPECT_DOUBLE_EQ(Shared.State.Signal1[0], std::log(first) + std::log(0.01));
  EXPECT_EQ(Shared.State.SignalUnits, "dS/m");
  EXPECT_THAT(Shared.State.SignalLabel, ElementsAre("ln of s1, ", "EMh"));
  EXPECT_EQ(Shared.State.Signals.Rows[0].LblNm, "ln of s1, ");
  Shared.Show<frmBasicStats>();
  EXPECT_EQ(Offered(), "23");
}

TEST_F(FrmBasicStats, RefusedLogarithmKeepsTheWindowAndTakesTheLabels)
{
  Shared.State.Signal2[99] = 0;
  const std::vector<double> before = Shared.State.Signal1;
  Type("frmBasicStats", "Text2", "mine");
  Click("frmBasicStats", "Check1");
  Click("frmBasicStats", "Command1");
  EXPECT_THAT(Asked.Said, ElementsAre("warn: Error!  Non-positive signal data detected!\n"
                                      "This signal data can not be log transformed."));
  EXPECT_NE(Window("frmBasicStats"), nullptr);
  EXPECT_THAT(Shared.State.SignalLabel, ElementsAre("EMv", "mine"));
  EXPECT_EQ(Shared.State.Signal1, before);
  EXPECT_FALSE(Shared.State.LogTransform);
}

TEST_F(FrmBasicStats, CancelChangesNothingAndDecorrelationClosesIt)
{
  const SurveyState before = Shared.State;
  Type("frmBasicStats", "Text1", "other");
  Click("frmBasicStats", "Check1");
  QTest::keyClick(Window("frmBasicStats"), Qt::Key_Escape);
  Settle();
  EXPECT_TRUE(Shared.State == before);
  Shared.Show<frmBasicStats>();
  Set(DecorrelatedSurvey(GridSurvey(10, 10)));
  EXPECT_EQ(Window("frmBasicStats"), nullptr);
}

}  // namespace
}  // namespace veln
