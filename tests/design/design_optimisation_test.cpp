#include "design/design_optimisation.h"

#include "design_fields.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

TEST(DesignOptimisation, TargetSeparationOfKnownFields)
{
  const auto separation = [](double width, double height, int n) {
    return FormatNumber(TargetSepDist(HandField({{0, 0}, {width, height}}), n), "0.0");
  };
  EXPECT_EQ(separation(100, 100, 5), "57.6");
  EXPECT_EQ(separation(300, 100, 10), "58.6");
  EXPECT_EQ(separation(100, 300, 10), "58.6");
  EXPECT_EQ(separation(45, 0, 5), "10.0");  // a line: 45 / (5 - 0.5)
  EXPECT_THAT(RefusalOf([] { TargetSepDist(HandField({{7, 7}, {7, 7}}), 5); }), HasSubstr("on one point"));
}

/// Two points: 1 m apart at first; each of three trials makes it 5 m, of which one leads on to 9 m.
TargetSites TwoPoints()
{
  TargetSites sites;
  sites[0] = {{{0, 0, 1, 0}, {0, -4, 2, 1}, {0, 6, 3, 2}}};
  sites[1] = {{{0, 1, 4, 3}, {0, 5, 5, 4}, {1, 1, 6, 5}}};
  return sites;
}

TEST(DesignOptimisation, OfEqualTrialsTheFirstIsMadeAndTheLastSweepCounts)
{
  TargetSites sites = TwoPoints();
  RunTranscript transcript;
  const Optimisation result = ExchangeSites(sites, 2, 9, "0.000", transcript);
  EXPECT_EQ(
      transcript.Lines,
      (Lines{"Initializing Optimization Algorithm:  Opt-Criteria =  9",
             "Iteration #  1:  Opt-Criteria =  1.8", "exchange 1 for 2", "Iteration #  2:  Opt-Criteria =  1",
             "exchange 4 for 5", "Converged on Itrn #  3:  Opt-Criteria =  1  Now searching for 1st SS..."}));
  EXPECT_EQ(result.LoopCount, 3);
  EXPECT_EQ(result.OptCriteria, 1);
  EXPECT_EQ(sites[0][1].SiteId, 1);  // the site that left may come back
}

TEST(DesignOptimisation, CoincidentPointsAreTakenApart)
{
  TargetSites sites;
  sites[0] = {{{2, 2, 1, 0}, {2, 2, 2, 1}, {2, 5, 3, 2}}};
  sites[1] = {{{2, 2, 4, 3}, {2, 2, 5, 4}, {2, 2, 6, 5}}};
  EXPECT_DOUBLE_EQ(DesignOpt(sites, 2), std::log(0.000001));
  RunTranscript transcript;
  EXPECT_EQ(ExchangeSites(sites, 2, 3, "0.000", transcript).LoopCount, 2);
  EXPECT_EQ(transcript.Lines.front(), "Initializing Optimization Algorithm:  Opt-Criteria =  3000000");
  EXPECT_EQ(transcript.Lines[2], "exchange 1 for 3");
}

}  // namespace
}  // namespace veln
