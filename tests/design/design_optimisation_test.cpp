#include "design/design_optimisation.h"

#include "design_fields.h"

namespace veln {
namespace {

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

TEST(DesignOptimisation, CoincidentPointsAreTakenApart)
{
  TargetSites sites;
  sites[0] = {{{2, 2, 1, 0}, {2, 2, 2, 1}, {2, 5, 3, 2}}};
  sites[1] = {{{2, 2, 4, 3}, {2, 2, 5, 4}, {2, 2, 6, 5}}};
  RunTranscript transcript;
  EXPECT_EQ(ExchangeSites(sites, 2, 3, "0.000", transcript).LoopCount, 2);
  EXPECT_EQ(transcript.Lines.front(), "Initializing Optimization Algorithm:  Opt-Criteria =  3000000");
  EXPECT_EQ(transcript.Lines[2], "exchange 1 for 3");
  EXPECT_EQ(sites[0][2].SiteId, 1);  // the site that left may come back
}

}  // namespace
}  // namespace veln
