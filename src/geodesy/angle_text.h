#pragma once

#include <optional>
#include <string_view>

namespace veln {

enum class AngleAxis { Latitude, Longitude };

/// What a number that stands alone means.
enum class AngleForm {
  Degrees,       ///< 52.4077
  PackedMinutes  ///< degrees and minutes in one number, as NMEA 0183 writes them: 5224.461 is 52° 24.461'
};

/// Reads a latitude or longitude in degrees, north and east positive. A number that stands alone is taken by
/// `form`; degrees and minutes (52° 24.461') and degrees, minutes and seconds (52:24:27.7) are known by their
/// parts, which blanks, colons or the signs of degree, minute and second may divide. The hemisphere is told
/// by a letter before or behind (N, S, E, W) or by a sign, not by both. Empty for anything else, and for
/// minutes or seconds of 60 and more. The value is not held against the range of a latitude or longitude.
std::optional<double> ParseAngle(std::string_view text, AngleAxis axis, AngleForm form);

/// Whether a text can be a position in packed minutes only: a single number with four or more digits before
/// the point, or one beyond its axis in degrees.
bool IsPackedMinutes(std::string_view text, AngleAxis axis);

/// Whether an angle lies in the range of its axis: 90 degrees of latitude or 180 of longitude either way.
bool IsInRange(double degrees, AngleAxis axis);

}  // namespace veln
