#include "geodesy/transverse_mercator.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

namespace veln {
namespace {

/// Points that PROJ projected; make_projected_points.py beside the file tells how.
TEST(TransverseMercator, AgreesWithAnIndependentProjection)
{
  constexpr double Tolerance = 1E-5;  // metres; PROJ's coordinates have six decimals
  constexpr double BackTolerance = 1E-10;
  std::ifstream file(VELN_TEST_DATA "/projected_points.txt");
  int points = 0;
  std::string text;
  GeographicPoint place;
  PlanePoint expected;
  while (file >> text >> place.Latitude >> place.Longitude >> expected.X >> expected.Y) {
    const auto system = ReadCoordinateSystem(text);
    ASSERT_TRUE(system) << text;
    const TransverseMercatorProjection projection(*system);
    const PlanePoint point = projection.Forward(place);
    EXPECT_NEAR(point.X, expected.X, Tolerance) << text << " " << place.Latitude << " " << place.Longitude;
    EXPECT_NEAR(point.Y, expected.Y, Tolerance) << text << " " << place.Latitude << " " << place.Longitude;
    const GeographicPoint back = projection.Reverse(point);
    EXPECT_NEAR(back.Latitude, place.Latitude, BackTolerance) << text;
    EXPECT_NEAR(back.Longitude, place.Longitude, BackTolerance) << text;
    ++points;
  }
  EXPECT_GT(points, 500);
}

TEST(TransverseMercator, CoversThirtyDegreesAcrossTheDateLine)
{
  const TransverseMercatorProjection projection(*ReadCoordinateSystem("tm:lon0=170"));
  EXPECT_TRUE(projection.Covers(140));
  EXPECT_TRUE(projection.Covers(-160));
  EXPECT_FALSE(projection.Covers(-159.9));
  EXPECT_FALSE(projection.Covers(139.9));
}

}  // namespace
}  // namespace veln
