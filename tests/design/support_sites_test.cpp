#include "design/support_sites.h"

#include "design/design_optimisation.h"
#include "design_fields.h"

namespace veln {
namespace {

TEST(SupportSites, CentralLimitFollowsTheSurveySize)
{
  for (const auto& [size, limit] : {std::pair{24, 1.0},
                                    {125, 1.0},
                                    {126, 125.0 / 126},
                                    {250, 0.5},
                                    {499, 125.0 / 499},
                                    {500, 0.25},
                                    {30000, 0.25}}) {
    EXPECT_EQ(CentralLimit(size), limit) << size;
  }
}

/// The code of the support site of a design whose only point lies at the origin; 0 if there is none.
int SupportOf(const SurveyState& state)
{
  TargetSites sites;
  sites[0][0] = {0, 0, 99, state.SiteId.size()};
  FindSupportSite(state, sites, 1, 1);
  return sites[1][0].Exists() ? sites[1][0].SiteId : 0;
}

TEST(SupportSites, SignalsAtTheLimitAreNotCentral)
{
  const std::vector<HandSite> sites = {
      {9, 0, 1, 0}, {8, 0, -1, 0}, {7, 0, 0, 1}, {6, 0, 0, -1}, {5, 0, 0.999, -0.999}};
  EXPECT_EQ(SupportOf(HandField(sites, 2)), 105);
  EXPECT_EQ(SupportOf(HandField(sites, 1)), 103);  // z2 is not read (there is none)
  EXPECT_EQ(SupportOf(HandField({sites[0], sites[2]}, 2)), 0);
}

TEST(SupportSites, FarthestFreeSiteIsTakenOfEqualOnesTheFirst)
{
  SurveyState state = HandField({{3, 3}, {-5, 0}, {4, 3}, {3, -4}, {0, 0}});
  EXPECT_EQ(SupportOf(state), 102);
  state.SiteStatus = {0, 1, 9, 8, 0};
  EXPECT_EQ(SupportOf(state), 101);
  state.SiteStatus[0] = 6;
  EXPECT_EQ(SupportOf(state), 0);  // at no distance from the design there is no support
}

}  // namespace
}  // namespace veln
