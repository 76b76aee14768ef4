#include "design/target_search.h"

#include "design_fields.h"

namespace veln {
namespace {

TEST(TargetSearch, StratumCountsTheFreeSitesOfEachPassAnew)
{
  const std::vector<std::size_t> picksOf[] = {
      {3, 4, 5}, {1, 2, 3}, {2, 3, 4}};  // the third of those free: 1 2 (3), 1 2 (4), 1 2 (5)
  for (int modulus = 0; modulus < 3; ++modulus) {
    SurveyState state = HandField(std::vector<HandSite>(12));  // all at one distance: a pass takes its first
    state.SiteStatus[0] = site_status::Masked;
    RunObserver silent;
    std::vector<std::size_t> picks;
    for (const CandidateSite& site : LocateTargetSites(state, {}, {3, modulus}, silent)) {
      picks.push_back(site.Index);
    }
    EXPECT_EQ(picks, picksOf[modulus]);
  }
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
              StartsWith("There are not enough free sites in this stratum"));
  EXPECT_EQ(state, before);

  sites.push_back({200, 0, 0});
  state = HandField(sites);
  MakeDesign(state, settings, silent);
  EXPECT_EQ(std::ranges::count(state.SiteStatus, site_status::Candidate), 15);
}

}  // namespace
}  // namespace veln
