#include "design/design_levels.h"

#include "support/testing.h"

namespace veln {
namespace {

TEST(DesignLevels, DFactorStretchesTheWholeTableButTheCentreOfTheLimitedSize)
{
  constexpr double Table[18][3] = {{0.75, 0.75, 0},       {2.5, 1.75, 1.75},      {-2.5, -1.75, -1.75},
                                   {1.5, 1.75, -1.75},    {-1.5, -1.75, 1.75},    {2.0, 2.5, 0},
                                   {-2.0, -2.5, 0},       {1.0, 0, 2.5},          {-1.0, 0, -2.5},
                                   {-0.75, -0.75, 0},     {2.25, 0.875, 0.875},   {-2.25, -0.875, -0.875},
                                   {1.75, 0.875, -0.875}, {-1.75, -0.875, 0.875}, {1.25, 1.25, 0},
                                   {-1.25, -1.25, 0},     {0.5, 0, 1.25},         {-0.5, 0, -1.25}};
  for (const DesignSize size : {DesignSize::Limited, DesignSize::Standard, DesignSize::Full}) {
    const DesignLevels plain = InitDLevels(size, 1);
    const DesignLevels wide = InitDLevels(size, 1.2);
    for (std::size_t point = 0; point < plain.size(); ++point) {
      const bool centre = size == DesignSize::Limited && point == 0;
      for (std::size_t column = 0; column < 3; ++column) {
        const double level = centre ? 0 : Table[point][column];
        EXPECT_EQ(plain[point][column], level) << "point " << point + 1;
        EXPECT_DOUBLE_EQ(wide[point][column], 1.2 * level) << "point " << point + 1;
      }
    }
  }
}

TEST(DesignLevels, SizeStepsDownWithTheAvailableSites)
{
  using enum DesignSize;
  for (const auto& [available, size] : {std::pair{80, Full}, {79, Standard}, {48, Standard}, {47, Limited}}) {
    EXPECT_EQ(AllowedSize(Full, available), size) << available;
    EXPECT_EQ(AllowedSize(Standard, available), std::min(size, Standard)) << available;
    EXPECT_EQ(AllowedSize(Limited, available), Limited);
  }
}

}  // namespace
}  // namespace veln
