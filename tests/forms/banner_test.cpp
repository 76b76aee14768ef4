#include "forms/banner.h"

#include "support/testing.h"

namespace veln {
namespace {

// The lines have 18, 15 and 18 characters, 51 in all.
Banner After(int ticks)
{
  Banner banner;
  for (int i = 0; i < ticks; ++i) {
    banner.Tick();
  }
  return banner;
}

/// What is to be seen: the visible lines.
std::string Seen(const Banner& banner)
{
  std::string seen;
  for (const Banner::Label& label : banner.Labels) {
    seen += label.Visible ? label.Text + "|" : "";
  }
  return seen;
}

TEST(Banner, TypesOneCharacterATickAndBeginsALineOnceTheLastIsWhole)
{
  EXPECT_EQ(Seen(After(0)), "");
  EXPECT_EQ(Seen(After(1)), "N|");
  EXPECT_EQ(Seen(After(18)), "Norvane Department|");
  EXPECT_EQ(Seen(After(19)), "Norvane Department|N|");
  EXPECT_EQ(Seen(After(33)), "Norvane Department|Norvane Service|");
  EXPECT_EQ(Seen(After(34)), "Norvane Department|Norvane Service|N|");
  EXPECT_EQ(Seen(After(51)), "Norvane Department|Norvane Service|Norvane Laboratory|");
}

TEST(Banner, EndsOneTickBehindTheLastCharacterAndStopsTheTimerOnTheNext)
{
  EXPECT_EQ(After(51).BannerRunning, 1);
  EXPECT_EQ(After(52).BannerRunning, 0);
  EXPECT_TRUE(After(52).TimerRunning);
  EXPECT_FALSE(After(53).TimerRunning);
  EXPECT_EQ(Seen(After(53)), "Norvane Department|Norvane Service|Norvane Laboratory|");
}

TEST(Banner, CutShortItShowsTheWholeLinesOnTheNextTick)
{
  Banner banner = After(5);
  banner.BannerRunning = 0;
  banner.Tick();
  EXPECT_EQ(Seen(banner), "Norvane Department|Norvane Service|Norvane Laboratory|");
  EXPECT_FALSE(banner.TimerRunning);
}

}  // namespace
}  // namespace veln
