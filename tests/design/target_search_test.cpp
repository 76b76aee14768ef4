#include "design/target_search.h"

#include "design_fields.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace veln {
namespace {

std::vector<std::size_t> PicksOf(SurveyState& state, const SearchTarget& target, const Stratum& stratum = {})
{
  RunObserver silent;
  std::vector<std::size_t> picks;
  for (const CandidateSite& site : LocateTargetSites(state, target, stratum, silent)) {
    EXPECT_EQ(site, (CandidateSite{state.CoordX[site.Index], state.CoordY[site.Index],
                                   state.SiteId[site.Index], site.Index}));
    picks.push_back(site.Index);
  }
  return picks;
}

using Picks = std::vector<std::size_t>;

TEST(TargetSearch, OfEqualDistancesTheEarlierSiteWins)
{
  SurveyState state = HandField({{0, 1, 2}, {2, 3, 1.5}, {4, 5, 0.5}, {6, 7, 1.5}});
  EXPECT_EQ(PicksOf(state, {2, 1.0}), (Picks{1, 2, 3}));
}

TEST(TargetSearch, EverySiteThatIsNotFreeIsPassedOver)
{
  SurveyState state = HandField(std::vector<HandSite>(12));
  state.SiteStatus = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0};
  EXPECT_EQ(PicksOf(state, {}), (Picks{9, 10, 11}));
  EXPECT_EQ(state.SiteStatus, (std::vector<std::int16_t>{1, 2, 3, 4, 5, 6, 7, 8, 9, 9, 9, 9}));
}

TEST(TargetSearch, StratumCountsTheFreeSitesOfEachPassAnew)
{
  const auto picks = [](int modulus) {
    SurveyState state = HandField(std::vector<HandSite>(12));  // all at one distance: a pass takes its first
    state.SiteStatus[0] = site_status::Masked;
    return PicksOf(state, {}, {3, modulus});
  };
  EXPECT_EQ(picks(0), (Picks{3, 4, 5}));  // the third of those free: 1 2 (3), 1 2 (4), 1 2 (5)
  EXPECT_EQ(picks(1), (Picks{1, 2, 3}));
  EXPECT_EQ(picks(2), (Picks{2, 3, 4}));
}

TEST(TargetSearch, DistanceFollowsTheSignalsAndTheScores)
{
  struct Case {
    int Signals;
    bool UseScores;
    const char* Distance;  // to (1, 2, score 0) from (4, 6, score 12)
  };
  for (const Case& c : {Case{1, false, "3"}, {2, false, "5"}, {1, true, "12.369"}, {2, true, "13"}}) {
    SurveyState state = HandField({{0, 0, 4, 6}, {0, 0, 1.0344, 2}, {0, 0, 1, 2}}, c.Signals);
    state.TransitionScore = {12, 0, 0};
    RunTranscript transcript;
    LocateTargetSites(state, {4, 1, 2, c.UseScores}, {}, transcript);
    EXPECT_EQ(transcript.Lines,
              (std::vector<std::string>{
                  std::string(" Locating target sites for RSD level #  4  Del Vec =  0  .034  ") + c.Distance,
                  "candidates of 4 103 102 101"}));
  }
}

// The fifteenth pick of a limited design needs a fifth free site: 14 are taken by then, so 19 sites do and 18
// do not.
TEST(TargetSearch, StratumWithoutASiteEndsTheRunAndFreesAllCandidates)
{
  DesignSettings settings = LimitedDesign();
  settings.Parsing = {5, 0};
  RunObserver silent;
  std::vector<HandSite> sites;
  sites.reserve(19);
  for (int i = 0; i < 18; ++i) {
    sites.push_back({10.0 * i, 3.0 * i * i, 0.25 * i - 2});
  }
  SurveyState state = HandField(sites);
  const SurveyState before = state;
  EXPECT_THAT(RefusalOf([&] { MakeDesign(state, settings, silent); }),
              testing::StartsWith("There are not enough free sites in this stratum"));
  EXPECT_EQ(state, before);

  sites.push_back({200, 0, 0});
  state = HandField(sites);
  MakeDesign(state, settings, silent);
  EXPECT_EQ(std::ranges::count(state.SiteStatus, site_status::Candidate), 15);
}

}  // namespace
}  // namespace veln
