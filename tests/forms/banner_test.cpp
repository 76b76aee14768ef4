#include "forms/banner.h"

#include "support/testing.h"

namespace veln {
namespace {

/// What is to be seen: the visible lines.
std::string Seen(const Banner& banner)
{
  std::string seen;
  for (const Banner::Label& label : banner.Labels) {
    seen += label.Visible ? label.Text + "|" : "";
  }
  return seen;
}

// The lines have 18, 15 and 18 characters, 51 in all.
TEST(Banner, TypesOneCharacterATickAndStopsOneTickBehindItsEnd)
{
  const std::map<int, std::string> seen = {{0, ""},
                                           {1, "N|"},
                                           {18, "Norvane Department|"},
                                           {19, "Norvane Department|N|"},
                                           {33, "Norvane Department|Norvane Service|"},
                                           {34, "Norvane Department|Norvane Service|N|"},
                                           {51, "Norvane Department|Norvane Service|Norvane Laboratory|"}};
  Banner banner;
  for (int tick = 0; tick <= 53; ++tick) {
    if (const auto row = seen.find(tick); row != seen.end()) {
      EXPECT_EQ(Seen(banner), row->second) << tick;
    }
    EXPECT_EQ(banner.BannerRunning, tick <= 51 ? 1 : 0) << tick;
    EXPECT_EQ(banner.TimerRunning, tick <= 52) << tick;
    banner.Tick();
  }
  Banner cutShort;
  cutShort.Tick();
  cutShort.BannerRunning = 0;
  cutShort.Tick();
  EXPECT_EQ(Seen(cutShort), seen.at(51));
  EXPECT_FALSE(cutShort.TimerRunning);
}

}  // namespace
}  // namespace veln
