#include "design/design_levels.h"

#include "support/testing.h"

namespace veln {
namespace {

using Lines = std::vector<std::string>;

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

TEST(DesignLevels, ListingOfTwoSignalsAtTheLowestDFactor)
{
  const LevelListing listing{DesignSize::Standard, "0.80", "12", " 2", 2, true, true, true};
  EXPECT_EQ(ListDLevels(listing, InitDLevels(DesignSize::Standard, 0.8)),
            (Lines{"",
                   "    CC-RSD: Order 2",
                   "    ( 2 signal data columns used )",
                   "",
                   "    D-Factor Value:     0.80",
                   "    Sample Size:        12",
                   "    Data Parsing / Stratification Invoked",
                   "",
                   "    D-Point   Design Level(s)",
                   "",
                   "     1         .6        0",
                   "     2         1.4       1.4",
                   "     3        -1.4      -1.4",
                   "     4         1.4      -1.4",
                   "     5        -1.4       1.4",
                   "     6         2         0",
                   "     7        -2         0",
                   "     8         0         2",
                   "     9         0        -2",
                   "     10       -.6        0",
                   "",
                   "    + 2 spatial support sites",
                   "",
                   "    Note: Transition Analysis invoked",
                   "    TA adjustments will be applied during ",
                   "    sample site selection process..."}));
}

TEST(DesignLevels, ListingOfOneSignalWithoutSupportSites)
{
  const LevelListing listing{DesignSize::Limited, "1.05", "5", " 1", 1, false, false, false};
  EXPECT_EQ(ListDLevels(listing, InitDLevels(DesignSize::Limited, 1.05)),
            (Lines{"", "    CC-RSD: Order 1", "    ( 1 signal data columns used )", "",
                   "    D-Factor Value:     1.05", "    Sample Size:        5", "",
                   "    D-Point   Design Level(s)", "", "     1         0", "     2         2.63",
                   "     3        -2.63", "     4         1.58", "     5        -1.58", "", ""}));
}

}  // namespace
}  // namespace veln
