#include "quality/field_spread.h"

#include "support/testing.h"

#include <random>

namespace veln {
namespace {

double HullArea(const std::vector<double>& x, const std::vector<double>& y)
{
  return PolygonArea(ConvexHull(x, y));
}

TEST(ConvexHull, AreasThatCanBeCheckedByEye)
{
  EXPECT_EQ(HullArea({0, 4, 4, 0, 1, 2, 4}, {0, 0, 3, 3, 1, 3, 1}), 12);
  EXPECT_EQ(HullArea({0, 2, 1}, {0, 0, 5}), 5);
  EXPECT_EQ(HullArea({0, 1, 2, 3}, {0, 2, 4, 6}), 0);
  EXPECT_EQ(HullArea({7, 7}, {2, 2}), 0);
  EXPECT_EQ(HullArea({-1, 0, 1, 0, 0}, {0, -1, 0, 1, 0}), 2);
}

// Every site lies on or to the left of each edge, and every corner is a site that turns left.
TEST(ConvexHull, HoldsAllSitesOfLargeSurveys)
{
  for (unsigned seed = 1; seed <= 20; ++seed) {
    std::mt19937_64 random(seed);
    std::vector<double> x;
    std::vector<double> y;
    for (int i = 0; i < 500; ++i) {
      x.push_back(static_cast<double>(random() % 40) * (seed % 3 == 0 ? 1 : 9));
      y.push_back(static_cast<double>(random() % 60) + (seed % 2 == 0 ? x.back() : 0));
    }
    const auto hull = ConvexHull(x, y);
    ASSERT_GE(hull.size(), 3U);
    for (std::size_t c = 0; c < hull.size(); ++c) {
      const FieldPosition& a = hull[c];
      const FieldPosition& b = hull[(c + 1) % hull.size()];
      const auto left = [&](double px, double py) {
        return (b.X - a.X) * (py - a.Y) - (b.Y - a.Y) * (px - a.X);
      };
      for (std::size_t i = 0; i < x.size(); ++i) {
        ASSERT_GE(left(x[i], y[i]), 0) << "seed " << seed;
      }
      const FieldPosition& c2 = hull[(c + 2) % hull.size()];
      ASSERT_GT(left(c2.X, c2.Y), 0) << "seed " << seed;
    }
  }
}

// A plan of three sites of a field of 6 by 4: distances 3, 4 and 5.
TEST(SpreadFigures, TriangleInARectangle)
{
  const std::vector<double> x = {0, 6, 6, 0, 1, 4, 4};
  const std::vector<double> y = {0, 0, 4, 4, 0, 0, 4};
  SurveyFacts facts;
  facts.X = x;
  facts.Y = y;
  facts.Available = {0, 1};
  const std::vector<std::size_t> plan = {6, 4, 5};
  const SpreadFigures figures = MeasureSpread(facts, plan, 24);
  EXPECT_EQ(figures.SmallestDistance, 3);
  EXPECT_EQ(figures.First, 1U);
  EXPECT_EQ(figures.Second, 2U);
  EXPECT_DOUBLE_EQ(figures.MeanNearest, (4 + 3 + 3) / 3.0);
  EXPECT_DOUBLE_EQ(*figures.SmallestRatio, 3 / std::sqrt(24.0 / 3));
  EXPECT_DOUBLE_EQ(*figures.MeanRatio, figures.MeanNearest / std::sqrt(24.0 / 3));
  EXPECT_EQ(MeasureSpread(facts, plan, 0).SmallestRatio, std::nullopt);
  EXPECT_EQ(SmallestDistance(facts, plan), 3);
  EXPECT_DOUBLE_EQ(MeanDistanceToPlan(facts, plan), (1 + 2) / 2.0);
}

}  // namespace
}  // namespace veln
