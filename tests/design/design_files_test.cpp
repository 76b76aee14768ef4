#include "design/design_files.h"

#include "design_fields.h"

namespace veln {
namespace {

using DesignFiles = DesignFolder;

/// A design of the sites at these places in the survey, point by point.
Design DesignOf(const SurveyState& state, const DesignSettings& settings,
                const std::vector<std::size_t>& places)
{
  Design design;
  design.Settings = settings;
  design.SignalCount = state.SignalCount;
  design.Levels = InitDLevels(settings.Size, settings.DFactor);
  for (std::size_t k = 0; k < places.size(); ++k) {
    const std::size_t i = places[k];
    design.Sites.at(k)[0] = {state.CoordX[i], state.CoordY[i], state.SiteId[i], i};
  }
  return design;
}

TEST_F(DesignFiles, GridOfOneSignalAndSixSites)
{
  SurveyState state = LineField(directory_.Path());
  RunObserver silent;
  const Design design = MakeDesign(state, LimitedDesign(), silent);
  const auto paths = SaveSamInfo(state, {design, "(Total Survey Size =  17   Active Survey Size =  17)"},
                                 dialogs_, FixedClock);
  EXPECT_EQ(paths, (std::vector<std::filesystem::path>{project_ / "ab12rsd1.txt", project_ / "ab12gps1.txt",
                                                       project_ / "ab12xrs1.asc"}));
  ExpectGolden("grid_one_signal_", {"rsd1.txt", "gps1.txt", "xrs1.asc"});
  EXPECT_EQ(state.SiteStatus, (std::vector<std::int16_t>{1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1}));
  EXPECT_EQ(state.DesignCount, 1);
  EXPECT_EQ(
      dialogs_.Said,
      (std::vector<std::string>{"inform: SRSD sampling design information has been saved to ab12rsd1.txt"}));
}

// With a column that a long coordinate pushes to the next line.
TEST_F(DesignFiles, TransectOfTwoSignalsAndTwelveSitesInAStratum)
{
  std::vector<HandSite> sites;
  sites.reserve(14);
  for (int i = 0; i < 14; ++i) {
    sites.push_back({500 + 2.5 * i, i < 7 ? 80 : 60.1234567, 0.25 * i - 1.75, 0.125 * i - 0.8});
  }
  sites[12].X = 123456.1234567;
  sites[13].X = 1234567.1234567;
  SurveyState state = HandField(sites, 2, directory_.Path());
  state.Kind = SurveyKind::Transect;
  state.RowNumber = {1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2, 2};
  state.TransitionDone = true;
  DesignSettings settings;
  settings.DFactor = 0.9;
  settings.Parsing = {3, 1};
  Design design = DesignOf(state, settings, {3, 0, 13, 1, 12, 2, 11, 4, 10, 5, 7, 8});
  design.OptCriteria = 1.234;
  design.LoopCount = 12;
  SaveSamInfo(state, {design, "(Total Survey Size =  14   Active Survey Size =  14)"}, dialogs_, FixedClock);
  ExpectGolden("transect_two_signals_", {"rsd1.txt", "gps1.txt", "xrs1.asc"});
  EXPECT_EQ(state.Designs[0], (DesignFacts{12, 1.234}));
}

TEST_F(DesignFiles, SecondDesignOfFiveSitesWithoutSupport)
{
  SurveyState state = LineField(directory_.Path());
  state.DesignCount = 1;
  DesignSettings settings = LimitedDesign();
  settings.DFactor = 1.05;
  settings.IncludeSupportSites = false;
  state.TransitionDone = true;
  settings.IgnoreTA = true;  // no note then
  Design design = DesignOf(state, settings, {4, 1, 2, 7, 8});
  design.OptCriteria = 0.984;
  design.LoopCount = 3;
  SaveSamInfo(state, {design, "(Total Survey Size =  17   Active Survey Size =  11)"}, dialogs_, FixedClock);
  ExpectGolden("without_support_", {"rsd2.txt"});
  EXPECT_EQ(state.Designs[0], DesignFacts{});
  EXPECT_EQ(state.Designs[1], (DesignFacts{5, 0.984}));
}

TEST_F(DesignFiles, EverySiteWithTheCodeJoinsTheDesign)
{
  SurveyState state = LineField(directory_.Path());
  state.SiteId[15] = 110;  // at 104.5 m, with z1 of .6; the first 110 stands at 130.5 m
  state.SiteStatus[15] = site_status::Masked;
  const Design design = DesignOf(state, LimitedDesign(), {12, 0, 3, 6, 9, 16});
  SaveSamInfo(state, {design, ""}, dialogs_, FixedClock);
  EXPECT_EQ(std::ranges::count(state.SiteStatus, 1), 7);
  EXPECT_EQ(state.SiteStatus[15], 1);
  EXPECT_THAT(Written("rsd1.txt"),
              HasSubstr("   110        -1.5            -1.5                130.5          7.25 \r\n"
                        "   110        -1.5             .6                 130.5          7.25 \r\n"));
  EXPECT_THAT(Written("gps1.txt"), EndsWith(" 104.5, 7.25, 110\r\n 145.5, 7.25, 117\r\n"));
}

}  // namespace
}  // namespace veln
