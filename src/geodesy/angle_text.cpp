#include "geodesy/angle_text.h"

#include "toolkit/number_text.h"

#include <array>
#include <cctype>
#include <cmath>
#include <cstddef>

namespace veln {

namespace {

constexpr double MinutesPerDegree = 60;
constexpr double SecondsPerMinute = 60;
constexpr double PackedDegree = 100;  // one degree in packed minutes

/// The numbers of an angle, up to degrees, minutes and seconds, and the side of its zero.
struct AngleParts {
  std::array<double, 3> Numbers{};
  std::size_t Count = 0;
  bool Negative = false;
};

bool IsBlank(char c)
{
  return c == ' ' || c == '\t' || c == '\0';
}

std::string_view Trimmed(std::string_view text)
{
  while (!text.empty() && IsBlank(text.front())) {
    text.remove_prefix(1);
  }
  while (!text.empty() && IsBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

/// The side that a hemisphere letter tells: 1, -1, or 0 where it is no letter of this axis.
int SideOf(char letter, AngleAxis axis)
{
  const bool latitude = axis == AngleAxis::Latitude;
  switch (std::toupper(static_cast<unsigned char>(letter))) {
    case 'N':
      return latitude ? 1 : 0;
    case 'S':
      return latitude ? -1 : 0;
    case 'E':
      return latitude ? 0 : 1;
    case 'W':
      return latitude ? 0 : -1;
    default:
      return 0;
  }
}

/// Takes hemisphere letter or sign off a text. False when both stand there, or two of them.
bool TakeSide(std::string_view& text, AngleAxis axis, bool& negative)
{
  int side = 0;
  if (!text.empty() && SideOf(text.back(), axis) != 0) {
    side = SideOf(text.back(), axis);
    text = Trimmed(text.substr(0, text.size() - 1));
  }
  if (!text.empty() && SideOf(text.front(), axis) != 0) {
    if (side != 0) {
      return false;
    }
    side = SideOf(text.front(), axis);
    text = Trimmed(text.substr(1));
  }
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    if (side != 0) {
      return false;
    }
    side = text.front() == '-' ? -1 : 1;
    text.remove_prefix(1);
  }
  negative = side < 0;
  return true;
}

/// Takes what divides two parts of an angle: blanks, a colon, the signs of degree, minute and second.
void SkipMarks(std::string_view& text)
{
  constexpr std::array<std::string_view, 10> Marks = {
      "\xC2\xB0", "\xB0", "\xC2\xBA", "\xE2\x80\xB2", "\xE2\x80\xB3", "'", "\"", ":", " ", "\t"};
  for (bool found = true; found;) {
    found = false;
    for (const std::string_view mark : Marks) {
      if (text.starts_with(mark)) {
        text.remove_prefix(mark.size());
        found = true;
      }
    }
  }
}

/// Reads digits with an optional point. Anything else ends the number.
std::optional<double> TakeNumber(std::string_view& text)
{
  const std::string_view digits =
      text.substr(0, std::min(text.find_first_not_of("0123456789."), text.size()));
  text.remove_prefix(digits.size());
  return ParseNumber(digits);
}

std::optional<AngleParts> ReadParts(std::string_view text, AngleAxis axis)
{
  AngleParts parts;
  text = Trimmed(text);
  if (!TakeSide(text, axis, parts.Negative)) {
    return std::nullopt;
  }
  while (!text.empty()) {
    const auto number = TakeNumber(text);
    if (!number || parts.Count == parts.Numbers.size()) {
      return std::nullopt;
    }
    parts.Numbers.at(parts.Count++) = *number;
    SkipMarks(text);
  }
  return parts.Count == 0 ? std::nullopt : std::optional(parts);
}

}  // namespace

std::optional<double> ParseAngle(std::string_view text, AngleAxis axis, AngleForm form)
{
  if (form == AngleForm::Degrees && text.find_first_of("eE") == std::string_view::npos) {
    if (const auto plain = ParseNumber(text)) {
      return plain;  // what most files hold, the short way
    }
  }
  const auto parts = ReadParts(text, axis);
  if (!parts) {
    return std::nullopt;
  }
  auto [degrees, minutes, seconds] = parts->Numbers;
  if (parts->Count == 1 && form == AngleForm::PackedMinutes) {
    minutes = degrees;
    degrees = std::floor(degrees / PackedDegree);
    minutes -= degrees * PackedDegree;
  }
  const bool wholeDegrees = parts->Count == 1 || degrees == std::floor(degrees);
  const bool wholeMinutes = parts->Count < 3 || minutes == std::floor(minutes);
  if (!wholeDegrees || !wholeMinutes || minutes >= MinutesPerDegree || seconds >= SecondsPerMinute) {
    return std::nullopt;
  }
  const double angle = degrees + (minutes + seconds / SecondsPerMinute) / MinutesPerDegree;
  return parts->Negative ? -angle : angle;
}

bool IsPackedMinutes(std::string_view text, AngleAxis axis)
{
  constexpr double FewestPacked = 1000;
  const auto parts = ReadParts(text, axis);
  if (!parts || parts->Count != 1 || !ParseAngle(text, axis, AngleForm::PackedMinutes)) {
    return false;
  }
  const std::size_t first = text.find_first_of("0123456789");
  const std::size_t digits = text.find_first_not_of("0123456789", first);
  const bool long4 = std::min(digits, text.size()) - first >= 4;
  return long4 || parts->Numbers[0] >= FewestPacked || !IsInRange(parts->Numbers[0], axis);
}

bool IsInRange(double degrees, AngleAxis axis)
{
  constexpr double HighestLatitude = 90;
  constexpr double HighestLongitude = 180;
  return std::abs(degrees) <= (axis == AngleAxis::Latitude ? HighestLatitude : HighestLongitude);
}

}  // namespace veln
