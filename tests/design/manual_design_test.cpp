#include "design/manual_design.h"

#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

TEST(ManualSelection, OverrulesEveryState)
{
  SurveyState select = HandField(std::vector<HandSite>(10));
  select.SiteStatus = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
  SurveyState unselect = select;
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(SelectSite(select, i), i != 6);
    EXPECT_EQ(UnselectSite(unselect, i), i != 0);
  }
  EXPECT_EQ(select.SiteStatus, std::vector<std::int16_t>(10, site_status::Selected));
  EXPECT_EQ(unselect.SiteStatus, std::vector<std::int16_t>(10, site_status::Free));
}

TEST(ManualSelection, FindsTheFirstSiteOfANumberThatFits)
{
  SurveyState state = HandField(std::vector<HandSite>(3));
  state.SiteId[2] = 102;
  EXPECT_EQ(FindSite(state, 102), 1U);
  for (const double unknown : {0.0, 100.0, 103.0, 101.5, 65637.0, 99999.0}) {  // 65637: 101 in 16 bits
    EXPECT_FALSE(FindSite(state, unknown)) << unknown;
  }
  EXPECT_EQ(UnknownSiteWarning(99999), " Warning! Site  99999 does not exist.");
}

class ManualDesign : public DesignFolder {
 protected:
  ManualDesign() : state_(HandField({{100.12345, 7, -1.504}, {1, 1}, {-20.5, 0, 0.25}}, 1, directory_.Path()))
  {
    state_.Signal1 = {45.675, 1, -0.125};
    state_.SiteStatus = {6, 0, 6};
  }

  void Save() { EXPECT_EQ(SaveUDSamInfo(state_, dialogs_, FixedClock), project_ / "ab12ugsd.txt"); }

  SurveyState state_;
};

TEST_F(ManualDesign, FileOfOneSignal)
{
  Save();
  ExpectGolden("manual_one_signal_", {"ugsd.txt"});
  EXPECT_EQ(dialogs_.Said,
            (Lines{"inform: User generated sampling design information has been saved to ab12ugsd.txt"}));
  EXPECT_TRUE(state_.ManualDesignDone);
  EXPECT_EQ(state_.ManualDesignSize, 2);
  EXPECT_FALSE(state_.Menu.IsEnabled(MenuEntry::mnuMask));
  EXPECT_TRUE(state_.Menu.IsEnabled(MenuEntry::mnuSHowMap));
  EXPECT_EQ(state_.SiteStatus, (std::vector<std::int16_t>{6, 0, 6}));
}

// A signal too long for its column pushes the rest of the row to the next line.
TEST_F(ManualDesign, FileOfTwoSignals)
{
  state_.SignalCount = 2;
  state_.Signal1 = {45.675, 1, 12345.678};
  state_.Signal2 = {30, 1, -0.125};
  state_.Decorr2 = {0.666, 0, -0.045};
  Save();
  ExpectGolden("manual_two_signals_", {"ugsd.txt"});
}

TEST_F(ManualDesign, FailingWriteChangesNothing)
{
  std::filesystem::create_directory(project_ / "ab12ugsd.txt");
  EXPECT_THAT(
      WholeRefusalOf(state_, [&] { SaveUDSamInfo(state_, dialogs_, FixedClock); }),
      AllOf(StartsWith("Warning: could not create output UGSD file...\n"), HasSubstr("ab12ugsd.txt")));
  EXPECT_EQ(dialogs_.Said, Lines{});
  EXPECT_EQ(ListFiles(project_), (Lines{"ab12ugsd.txt/"}));
}

}  // namespace
}  // namespace veln
