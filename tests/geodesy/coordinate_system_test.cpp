#include "geodesy/coordinate_system.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace veln {
namespace {

TEST(CoordinateSystemText, ReadsAndWritesEverySystem)
{
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"local", "local"},
      {"utm:31N", "utm:31N"},
      {"UTM:1s", "utm:1S"},
      {"epsg:32631", "utm:31N"},
      {"EPSG:32760", "utm:60S"},
      {"epsg:25832", "utm:32N"},
      {"epsg:28356", "utm:56S"},
      {"tm:lon0=9", "tm:lon0=9,lat0=0,k0=0.9996,fe=500000,fn=0"},
      {"tm:fn=-100000,k0=0.9996012717,fe=400000,lat0=49,lon0=-2",
       "tm:lon0=-2,lat0=49,k0=0.9996012717,fe=400000,fn=-100000"},
  };
  for (const auto& [text, expected] : cases) {
    const auto system = ReadCoordinateSystem(text);
    ASSERT_TRUE(system) << text;
    EXPECT_EQ(TextOf(*system), expected);
    EXPECT_EQ(ReadCoordinateSystem(expected), system) << text;
  }
}

TEST(CoordinateSystemText, RefusesWhatIsNoSystem)
{
  for (const char* text :
       {"",          "utm",         "utm:",           "utm:0N",        "utm:61N",    "utm:31", "utm:31X",
        "utm:-1N",   "epsg:4326",   "epsg:32600",     "epsg:32661",    "epsg:25801", "epsg:",  "tm:",
        "tm:lat0=1", "tm:lon0=181", "tm:lon0=9,k0=0", "tm:lon0=9,q=1", "tm:lon0",    "mars"}) {
    EXPECT_FALSE(ReadCoordinateSystem(text)) << text;
  }
}

TEST(CoordinateSystem, UtmZoneOfAPlace)
{
  struct Place {
    double Latitude, Longitude;
    const char* Expected;
  };
  // 60° north: the west coast of Norway belongs to zone 32; Svalbard has no zone 32, 34 or 36.
  for (const Place& place :
       {Place{52.4, -0.0001, "utm:30N"}, Place{52.4, 0, "utm:31N"}, Place{-0.001, 5.9, "utm:31S"},
        Place{0, 6, "utm:32N"}, Place{60, 4, "utm:32N"}, Place{78, 10, "utm:33N"}, Place{10, 180, "utm:1N"},
        Place{-34.5, 138.8, "utm:54S"}, Place{83.9, 3, "utm:31N"}, Place{-79.9, 3, "utm:31S"}}) {
    const auto system = UtmSystemOf(place.Latitude, place.Longitude);
    ASSERT_TRUE(system) << place.Expected;
    EXPECT_EQ(TextOf(*system), place.Expected) << place.Latitude << " " << place.Longitude;
  }
  EXPECT_FALSE(UtmSystemOf(84.01, 3));
  EXPECT_FALSE(UtmSystemOf(-80.01, 3));
}

TEST(CoordinateSystem, EpsgNumbersOfUtmAlone)
{
  EXPECT_EQ(EpsgNumber(UtmSystem(31, true)), 32631);
  EXPECT_EQ(EpsgNumber(UtmSystem(5, false)), 32705);
  EXPECT_EQ(EpsgNumber({}), std::nullopt);
}

}  // namespace
}  // namespace veln
