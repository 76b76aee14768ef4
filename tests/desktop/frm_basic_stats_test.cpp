#include "desktop/survey/frm_basic_stats.h"

#include "desktop/desktop_fixture.h"
#include "support/surveys.h"

#include <QCheckBox>

namespace veln {
namespace {

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
  Open(ImportedSurvey(GridSurvey(10, 10, 1)));
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
  EXPECT_THAT(Shared.State.SignalLabel, ElementsAre("ln of s1, ", "EMh"));
  Shared.Show<frmBasicStats>();
  EXPECT_EQ(Offered(), "23");
}

TEST_F(FrmBasicStats, RefusedLogarithmKeepsTheWindowAndTakesTheLabels)
{
  Shared.State.Signal2[99] = 0;
  Type("frmBasicStats", "Text2", "mine");
  Click("frmBasicStats", "Check1");
  Click("frmBasicStats", "Command1");
  EXPECT_THAT(Asked.Said, ElementsAre(StartsWith("warn: Error!  Non-positive signal data detected!")));
  EXPECT_NE(Window("frmBasicStats"), nullptr);
  EXPECT_THAT(Shared.State.SignalLabel, ElementsAre("EMv", "mine"));
}

}  // namespace
}  // namespace veln
