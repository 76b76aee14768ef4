#include "geodesy/angle_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace veln {
namespace {

constexpr AngleAxis Lat = AngleAxis::Latitude;
constexpr AngleAxis Lon = AngleAxis::Longitude;
constexpr AngleForm Degrees = AngleForm::Degrees;
constexpr AngleForm Packed = AngleForm::PackedMinutes;

struct AngleCase {
  std::string Text;
  AngleAxis Axis;
  AngleForm Form;
  double Expected;
};

TEST(AngleText, ReadsEveryFormOfAPosition)
{
  const std::vector<AngleCase> cases = {
      {"52.5", Lat, Degrees, 52.5},
      {" -3.25 ", Lon, Degrees, -3.25},
      {"+3.25", Lon, Degrees, 3.25},
      {"3.25W", Lon, Degrees, -3.25},
      {"W 3.25", Lon, Degrees, -3.25},
      {"34.5s", Lat, Degrees, -34.5},
      {"52 30.0", Lat, Degrees, 52.5},
      {"52\xC2\xB0 30.0' N", Lat, Degrees, 52.5},
      {"52\xB0"
       "30'N",
       Lat, Degrees, 52.5},
      {"3:15:36W", Lon, Degrees, -3.26},
      {"3\xC2\xB0"
       "15\xE2\x80\xB2"
       "36.0\xE2\x80\xB3 W",
       Lon, Degrees, -3.26},
      {"-0 30 0", Lat, Degrees, -0.5},
      {"5230.0000N", Lat, Packed, 52.5},
      {"00315.6W", Lon, Packed, -3.26},
      {"-315.6", Lon, Packed, -3.26},
      {"30.0", Lat, Packed, 0.5},
      {"0.00", Lat, Packed, 0},
      {"18000.0E", Lon, Packed, 180},
  };
  for (const AngleCase& one : cases) {
    const auto angle = ParseAngle(one.Text, one.Axis, one.Form);
    ASSERT_TRUE(angle) << one.Text;
    EXPECT_NEAR(*angle, one.Expected, 1E-12) << one.Text;
  }
}

TEST(AngleText, RefusesWhatIsNoAngle)
{
  for (const char* text : {"", " ", "N", "x", "52.4E", "-3.2N", "N52N", "--3", "52.5 30", "52 30.5 10",
                           "52 60", "52 30 60", "1 2 3 4", "52N30", "1e3", "nan", "1.2.3", "52,5"}) {
    EXPECT_FALSE(ParseAngle(text, Lat, Degrees)) << text;
  }
  EXPECT_FALSE(ParseAngle("5260.0", Lat, Packed));
}

TEST(AngleText, PackedMinutesAreKnownByWhatDegreesCanNotBe)
{
  for (const char* text : {"5224.46", "0012.5", "-5224.46", "123.4"}) {
    EXPECT_TRUE(IsPackedMinutes(text, Lat)) << text;
  }
  EXPECT_TRUE(IsPackedMinutes("00220.6W", Lon));
  EXPECT_TRUE(IsPackedMinutes("220.6W", Lon));
  for (const char* text : {"52.4", "90", "5299.0", "52 24.4", "12.5", ""}) {
    EXPECT_FALSE(IsPackedMinutes(text, Lat)) << text;
  }
  EXPECT_FALSE(IsPackedMinutes("123.4", Lon));
}

TEST(AngleText, RangesEndAtPoleAndDateLine)
{
  EXPECT_TRUE(IsInRange(-90, Lat));
  EXPECT_FALSE(IsInRange(std::nextafter(90, 91), Lat));
  EXPECT_TRUE(IsInRange(180, Lon));
  EXPECT_FALSE(IsInRange(std::nextafter(-180, -181), Lon));
}

}  // namespace
}  // namespace veln
