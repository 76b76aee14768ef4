#include "graphics/site_map.h"

#include "graph_fields.h"

namespace veln {
namespace {

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
