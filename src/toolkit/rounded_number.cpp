#include "toolkit/rounded_number.h"

#include "toolkit/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace veln {

namespace {

constexpr std::array<double, 8> PowersOfTen = {1, 1E1, 1E2, 1E3, 1E4, 1E5, 1E6, 1E7};

/// The magnitude in units of the last place, where that is beyond doubt.
///
/// The rule rounds the number's decimal form with 15 significant digits. That form differs from the number by
/// less than 5E-15 of it, and the product below by less than 2E-16 of it: together less than 0.06 of a unit
/// up to 1E+13 units. A rest at least 0.1 away from a half therefore rounds the same way by either.
std::optional<std::uint64_t> UnitsOfLastPlace(double value, std::size_t places)
{
  constexpr double MostUnits = 1E+13;
  constexpr double Doubt = 0.1;
  if (places >= PowersOfTen.size()) {
    return std::nullopt;
  }
  const double units = std::abs(value) * PowersOfTen.at(places);
  if (!(units < MostUnits)) {
    return std::nullopt;
  }
  const double whole = std::floor(units);
  const double rest = units - whole;
  if (std::abs(rest - 0.5) < Doubt) {
    return std::nullopt;
  }
  return static_cast<std::uint64_t>(whole) + (rest > 0.5 ? 1 : 0);
}

}  // namespace

std::string RoundedNumber(double value, std::string_view pattern)
{
  const std::size_t point = pattern.find('.');
  std::size_t places = point == std::string_view::npos ? 0 : pattern.size() - point - 1;
  const auto found = UnitsOfLastPlace(value, places);
  if (!found) {
    return NumberToString(RoundByFormat(value, pattern));
  }
  std::uint64_t units = *found;
  if (units == 0) {
    return " 0";
  }
  for (; places > 0 && units % 10 == 0; --places) {
    units /= 10;
  }
  std::array<char, 24> digits{};
  const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), units).ptr;
  const std::string_view all(digits.data(), static_cast<std::size_t>(end - digits.data()));
  std::string text(1, value < 0 ? '-' : ' ');
  if (places == 0) {
    return text.append(all);
  }
  const std::size_t before = all.size() > places ? all.size() - places : 0;
  text.append(all.substr(0, before)).append(1, '.');
  return text.append(places - (all.size() - before), '0').append(all.substr(before));
}

}  // namespace veln
