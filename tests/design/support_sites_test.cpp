#include "design/support_sites.h"

#include "design_fields.h"

namespace veln {
namespace {

TEST(SupportSites, SignalsAtTheLimitAreNotCentral)
{
  const std::vector<HandSite> sites = {
      {9, 0, 1, 0}, {8, 0, -1, 0}, {7, 0, 0, 1}, {6, 0, 0, -1}, {5, 0, 0.999, -0.999}};
  TargetSites design;
  design[0][0] = {0, 0, 99, sites.size()};
  EXPECT_EQ(FindSupportSite(HandField(sites, 2), design, 1).SiteId, 105);
  EXPECT_EQ(FindSupportSite(HandField(sites, 1), design, 1).SiteId, 103);  // z2 is not read (there is none)
  EXPECT_FALSE(FindSupportSite(HandField({sites[0], sites[2]}, 2), design, 1).Exists());
  EXPECT_FALSE(FindSupportSite(HandField({{0, 0}}), design, 1).Exists());  // at no distance from the design
}

}  // namespace
}  // namespace veln
