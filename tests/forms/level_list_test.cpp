#include "forms/level_list.h"

#include "support/testing.h"

namespace veln {
namespace {

std::string Listed(const LevelListing& listing)
{
  std::string text = ListDLevels(listing);
  std::erase(text, '\r');
  return text;
}

TEST(LevelList, OfTwoSignalsAtTheLowestDFactor)
{
  LevelListing listing{{}, 2, true, true};
  listing.Settings.DFactor = 0.8;
  EXPECT_EQ(Listed(listing),
            R"(
    CC-RSD: Order 2
    ( 2 signal data columns used )

    D-Factor Value:     0.80
    Sample Size:        12
    Data Parsing / Stratification Invoked

    D-Point   Design Level(s)

     1         .6        0
     2         1.4       1.4
     3        -1.4      -1.4
     4         1.4      -1.4
     5        -1.4       1.4
     6         2         0
     7        -2         0
     8         0         2
     9         0        -2
     10       -.6        0

    + 2 spatial support sites

    Note: Transition Analysis invoked
    TA adjustments will be applied during 
    sample site selection process...
)");
}

TEST(LevelList, OfOneSignalWithAndWithoutTheSupportSite)
{
  LevelListing listing;
  listing.Settings.Size = DesignSize::Limited;
  listing.Settings.DFactor = 1.05;
  EXPECT_THAT(Listed(listing),
              AllOf(StartsWith("\n    CC-RSD: Order 1\n    ( 1 signal data columns used )\n\n"),
                    EndsWith("Sample Size:        6\n\n    D-Point   Design Level(s)\n\n     1         0\n"
                             "     2         2.63\n     3        -2.63\n     4         1.58\n"
                             "     5        -1.58\n\n    + 1 spatial support site\n\n")));
  listing.Settings.IncludeSupportSites = false;
  EXPECT_THAT(Listed(listing), AllOf(HasSubstr("Sample Size:        5\n"), EndsWith("-1.58\n\n\n")));
}

}  // namespace
}  // namespace veln
