#include "graphics/site_map.h"

#include "graph_fields.h"
#include "support/refusals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veln {
namespace {

using testing::ElementsAre;

TEST(SiteMap, OffersTheDesignsThatExist)
{
  SurveyState state = SitesAt({0, 1}, {0, 1}, {1, 2});
  SiteMapForm form = LoadSiteMap(state);
  EXPECT_FALSE(form.mnusubSRS || form.mnusubUGD);
  state.DesignCount = 2;
  form = LoadSiteMap(state);
  EXPECT_TRUE(form.mnusubSRS);
  EXPECT_THAT(form.mnusubRS, ElementsAre(true, true, false, false, false));
  for (const int number : {0, 3, 6, 7}) {
    EXPECT_NE(RefusalOf([&] { ShowDesignMap(form, state, number); }), "not refused") << number;
  }
  EXPECT_EQ(form.lblSMT, "");
  state.ManualDesignDone = true;
  form = LoadSiteMap(state);
  ShowDesignMap(form, state, 6);
  EXPECT_EQ(form.lblSMT, "User Generated Sample Design");
  ShowDesignMap(form, state, 2);
  EXPECT_EQ(form.lblSMT, "VELN SRS Sample Design #2");
}

TEST(SiteMap, DrawsAllSitesThenTheDesignWithItsNumbers)
{
  SurveyState state = SitesAt({0, 50, 100}, {0, 0, 10}, {1, 2, 3});
  state.SiteStatus = {2, 1, site_status::Masked};
  const Drawing map = DrawSiteMap(state, 1);
  EXPECT_EQ(map.PixelWidth, 433);
  ASSERT_EQ(map.Marks.size(), 6);
  EXPECT_EQ(map.Marks[0], DrawMark(BoxMark{{0, 0}, {1, 1}, {QBColor(0), 2}, false}));
  const auto dots = Only<DotMark>(map);
  // x runs from -10 to 110 and y from -55 to 65: 120 on both axes.
  EXPECT_DOUBLE_EQ(dots[0].At.X, 1.0 / 12);
  EXPECT_DOUBLE_EQ(dots[2].At.X, 11.0 / 12);
  EXPECT_DOUBLE_EQ(dots[2].At.Y, 55.0 / 120);
  EXPECT_EQ(dots[2].Stroke, (Pen{QBColor(1), 1})) << "a masked site has no mark of its own";
  EXPECT_EQ(dots[3], (DotMark{dots[1].At, {QBColor(9), 4}}));
  EXPECT_EQ(map.Marks[5],
            DrawMark(TextMark{{dots[1].At.X + 0.01, dots[1].At.Y + 0.01}, " 2 ", QBColor(0), 8, true}));
}

TEST(FitSquare, KeepsTheCentreAndAddsAMargin)
{
  const FieldExtent tall = FitSquare({{2, 4}, {0, 10}});
  EXPECT_EQ(tall.X.Minimum, 3 - 5 - 1);
  EXPECT_EQ(tall.X.Maximum, 3 + 5 + 1);
  EXPECT_EQ(tall.Y.Minimum, -1);
  EXPECT_EQ(tall.Y.Maximum, 11);
  const FieldExtent point = FitSquare({{5, 5}, {7, 7}});
  EXPECT_EQ(point.X.Minimum + point.X.Maximum, 10);
  EXPECT_GT(point.Y.Maximum, point.Y.Minimum);
}

}  // namespace
}  // namespace veln
