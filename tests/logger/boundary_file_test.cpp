#include "logger/boundary_file.h"

#include "support/refusals.h"

#include <gmock/gmock.h>

namespace veln {
namespace {

using testing::HasSubstr;

const CoordinateSystem Utm = UtmSystem(31, true);

constexpr const char* Square =
    R"({"type":"Feature","properties":null,"geometry":{"type":"Polygon","coordinates":[[[3,52],[3.001,52],[3.001,52.001],[3,52.001],[3,52]]]}})";
constexpr const char* Kml =
    "<?xml version=\"1.0\"?>\n<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document><Placemark><Polygon>"
    "<outerBoundaryIs><LinearRing><coordinates>\n3,52,0 3.001,52,0\n3.001,52.001,0 3,52.001,0 3,52,0"
    "</coordinates></LinearRing></outerBoundaryIs><innerBoundaryIs><LinearRing><coordinates>"
    "3.0004,52.0004 3.0006,52.0004 "
    "3.0006,52.0006</coordinates></LinearRing></innerBoundaryIs></Polygon></Placemark>"
    "<Placemark><Point><coordinates>3,52</coordinates></Point></Placemark></Document></kml>";

TEST(BoundaryFile, GeographicAreasComeToThePlane)
{
  for (const char* content : {Square, Kml}) {
    const auto areas = ReadAreas(content, "f", Utm);
    ASSERT_EQ(areas.size(), 1);
    // 3 degrees east is the central meridian of zone 31; a thousandth of a degree east of it is 68.65 m
    // there.
    EXPECT_NEAR(areas[0].Rings()[0][0].X, 500000, 1E-6);
    EXPECT_NEAR(areas[0].Rings()[0][1].X, 500068.65, 0.01);
    EXPECT_TRUE(areas[0].Holds({500030, areas[0].Rings()[0][0].Y + 20}));
  }
  EXPECT_EQ(ReadAreas(Kml, "f", Utm)[0].Rings().size(), 2);
}

TEST(BoundaryFile, GeoJsonInTheSurveysOwnSystem)
{
  const char* const plane =
      R"({"type":"MultiPolygon","coordinates":[[[[0,0],[100,0],[100,100]]],[[[200,0],[300,0],[300,100],[200,0]]]]})";
  const auto local = ReadAreas(plane, "f", {});
  ASSERT_EQ(local.size(), 2);
  EXPECT_TRUE(local[1].Holds({290, 10}));
  EXPECT_EQ(ReadAreas(plane, "f", Utm).size(), 2);  // 300 can be no degrees
  const std::string named =
      std::string(
          R"({"type":"FeatureCollection","crs":{"properties":{"name":"urn:ogc:def:crs:EPSG::32631"}},"features":[)") +
      Square + "]}";
  EXPECT_DOUBLE_EQ(ReadAreas(named, "f", Utm)[0].Rings()[0][1].X, 3.001);
  EXPECT_THAT(RefusalOf([&] { ReadAreas(named, "f", UtmSystem(32, true)); }),
              HasSubstr("another coordinate system"));
}

TEST(BoundaryFile, RefusesWhatBoundsNothing)
{
  const std::vector<std::pair<std::string, const char*>> cases = {
      {"", "neither KML nor GeoJSON"},
      {"{\"type\":\"Point\",\"coordinates\":[3,52]}", "holds no polygon"},
      {"{\"type\":7}", "of another kind"},
      {"[1,2]", "holds no polygon"},
      {"{\"type\":\"Polygon\"}", "\"coordinates\" is missing"},
      {"{\"type\":\"Polygon\",\"coordinates\":[[[3,52],[3,\"a\"]]]}", "no pair of numbers"},
      {"{\"type\":\"Polygon\",\"coordinates\":[[[3,52],[3,53]]]}", "fewer than three points"},
      {"{\"type\":\"Polygon\",\"coordinates\":[[[52,3],[52,4],[53,3]]]}", "too far from the survey"},
      {"<kml><Polygon></kml>", "line 1: no KML"},
      {"<kml></kml>", "holds no polygon"},
      {"<kml><Polygon><coordinates>3,a 4,5 6,7</coordinates></Polygon></kml>", "are no numbers"},
      {"PK\x03\x04", "packed (KMZ)"},
  };
  for (const auto& [content, part] : cases) {
    EXPECT_THAT(RefusalOf([&] { ReadAreas(content, "f", Utm); }), HasSubstr(part)) << content;
  }
  EXPECT_THAT(RefusalOf([] { ReadAreas(Kml, "f", {}); }), HasSubstr("local metres; tell --crs"));
}

}  // namespace
}  // namespace veln
