#include "toolkit/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <system_error>

namespace veln {

namespace {

constexpr int SignificantDigits = 15;

/// A number's decimal form: d.dddd x 10^Exponent with 15 significant digits.
struct Decimal {
  bool Negative = false;
  std::string Digits;  // always 15 of them
  int Exponent = 0;
};

Decimal ToDecimal(double value)
{
  std::array<char, 40> buffer{};
  const char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                  std::chars_format::scientific, SignificantDigits - 1)
                        .ptr;
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t mark = text.find('e');
  Decimal decimal;
  decimal.Negative = value < 0;
  decimal.Digits = text.substr(0, 1);
  decimal.Digits += text.substr(2, mark - 2);
  decimal.Exponent = std::atoi(text.data() + mark + 1);
  return decimal;
}

/// The digits of `decimal` as a plain number, without sign: those before the point (none for a number below
/// 1) and those behind it, without trailing zeros.
struct PlainDigits {
  std::string Whole;
  std::string Fraction;
};

PlainDigits ToPlain(const Decimal& decimal)
{
  PlainDigits plain;
  if (decimal.Exponent < 0) {
    plain.Fraction = std::string(static_cast<std::size_t>(-decimal.Exponent - 1), '0') + decimal.Digits;
  } else {
    const auto whole = static_cast<std::size_t>(decimal.Exponent) + 1;
    std::string digits = decimal.Digits;
    digits.resize(std::max(whole, digits.size()), '0');
    plain.Whole = digits.substr(0, whole);
    plain.Fraction = digits.substr(whole);
  }
  plain.Fraction.erase(plain.Fraction.find_last_not_of('0') + 1);
  return plain;
}

/// Cuts the digits behind the point to `places`, rounding a half up (that is away from zero).
void RoundPlaces(PlainDigits& plain, std::size_t places)
{
  if (plain.Fraction.size() <= places) {
    return;
  }
  const bool up = plain.Fraction[places] >= '5';
  plain.Fraction.resize(places);
  if (!up) {
    return;
  }
  std::string digits = "0" + plain.Whole + plain.Fraction;
  auto last = digits.rbegin();
  while (*last == '9') {
    *last++ = '0';
  }
  ++*last;
  const std::size_t whole = plain.Whole.size() + 1;
  plain.Whole = digits.substr(0, whole);
  plain.Fraction = digits.substr(whole);
}

std::string Scientific(const Decimal& decimal)
{
  std::string digits = decimal.Digits;
  digits.erase(digits.find_last_not_of('0') + 1);
  std::string text = digits.substr(0, 1);
  if (digits.size() > 1) {
    text += "." + digits.substr(1);
  }
  const std::string power = std::to_string(std::abs(decimal.Exponent));
  return text + (decimal.Exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
}

struct FormatPattern {
  std::size_t WholeDigits = 0;
  std::size_t FewestPlaces = 0;
  std::size_t MostPlaces = 0;
};

FormatPattern ReadPattern(std::string_view pattern)
{
  const std::size_t point = std::min(pattern.find('.'), pattern.size());
  const std::string_view whole = pattern.substr(0, point);
  const std::string_view places = pattern.substr(std::min(point + 1, pattern.size()));
  return {static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '0')),
          static_cast<std::size_t>(std::count(places.begin(), places.end(), '0')), places.size()};
}

bool IsDigit(char c)
{
  return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t at)
{
  while (at < text.size() && IsDigit(text[at])) {
    ++at;
  }
  return at;
}

/// The length of the mantissa (digits with an optional point) at the start of `text`, 0 if it has no digit.
std::size_t MantissaLength(std::string_view text)
{
  const std::size_t whole = SkipDigits(text, 0);
  if (whole == text.size() || text[whole] != '.') {
    return whole;
  }
  const std::size_t end = SkipDigits(text, whole + 1);
  return end == 1 ? 0 : end;
}

/// Whether `text` is E or e, an optional sign and at least one digit.
bool IsExponent(std::string_view text)
{
  if (text.empty() || (text[0] != 'E' && text[0] != 'e')) {
    return false;
  }
  const std::size_t sign = text.size() > 1 && (text[1] == '+' || text[1] == '-') ? 1 : 0;
  return text.size() > 1 + sign && SkipDigits(text, 1 + sign) == text.size();
}

/// The power of ten of the first digit that is not zero; only its sign matters, for a number outside the
/// doubles.
long LeadingPower(std::string_view mantissa, std::string_view exponent)
{
  const auto point = static_cast<long>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<long>(mantissa.find_first_not_of("0."));
  const long place = first < point ? point - first - 1 : point - first;
  constexpr long Unbounded = 1'000'000'000;
  long power = 0;
  for (const char c : exponent) {
    if (IsDigit(c) && power < Unbounded) {
      power = power * 10 + (c - '0');
    }
  }
  return place + (exponent.find('-') == std::string_view::npos ? power : -power);
}

}  // namespace

std::string GeneralForm(double value)
{
  if (value == 0) {
    return "0";
  }
  const Decimal decimal = ToDecimal(value);
  const std::string sign = decimal.Negative ? "-" : "";
  if (decimal.Exponent >= SignificantDigits) {
    return sign + Scientific(decimal);
  }
  const PlainDigits plain = ToPlain(decimal);
  if (plain.Fraction.size() > SignificantDigits) {
    return sign + Scientific(decimal);
  }
  return sign + plain.Whole + (plain.Fraction.empty() ? "" : "." + plain.Fraction);
}

std::string NumberToString(double value)
{
  const std::string text = GeneralForm(value);
  return text.front() == '-' ? text : " " + text;
}

std::string Counted(std::int64_t count, const std::string& thing)
{
  return GeneralForm(static_cast<double>(count)) + " " + thing + (count == 1 ? "" : "s");
}

std::string PrintedNumber(double value)
{
  return NumberToString(value) + " ";
}

std::string FormatNumber(double value, std::string_view pattern)
{
  const FormatPattern format = ReadPattern(pattern);
  const Decimal decimal = ToDecimal(value);
  PlainDigits plain = ToPlain(decimal);
  RoundPlaces(plain, format.MostPlaces);
  plain.Whole.erase(0, std::min(plain.Whole.find_first_not_of('0'), plain.Whole.size()));
  plain.Fraction.erase(plain.Fraction.find_last_not_of('0') + 1);
  const bool zero = plain.Whole.empty() && plain.Fraction.empty();
  if (plain.Whole.size() < format.WholeDigits) {
    plain.Whole.insert(0, format.WholeDigits - plain.Whole.size(), '0');
  }
  plain.Fraction.resize(std::max(plain.Fraction.size(), format.FewestPlaces), '0');
  return (decimal.Negative && !zero ? "-" : "") + plain.Whole +
         (plain.Fraction.empty() ? "" : "." + plain.Fraction);
}

double RoundByFormat(double value, std::string_view pattern)
{
  return ParseNumber(FormatNumber(value, pattern)).value_or(value);
}

std::string ShortestForm(double value)
{
  constexpr double LeastPlain = 1E-5;
  constexpr double MostPlain = 1E+15;
  constexpr std::size_t Longest = 32;
  std::array<char, Longest> text{};
  const double size = std::abs(value);
  const bool plain = size == 0 || (size >= LeastPlain && size < MostPlain);
  const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0 : value, format);
  return {text.data(), end.ptr};
}

std::optional<double> ParseNumber(std::string_view text)
{
  const bool negative = !text.empty() && text[0] == '-';
  if (negative || (!text.empty() && text[0] == '+')) {
    text.remove_prefix(1);
  }
  const std::size_t length = MantissaLength(text);
  const std::string_view exponent = text.substr(length);
  if (length == 0 || (!exponent.empty() && !IsExponent(exponent))) {
    return std::nullopt;
  }
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    if (LeadingPower(text.substr(0, length), exponent) > 0) {
      return std::nullopt;
    }
    value = 0;
  }
  return negative && value != 0 ? -value : value;
}

std::optional<std::int16_t> RoundToInt16(double value)
{
  const double rounded = std::nearbyint(value);  // the default rounding mode: ties to even
  if (!(rounded >= std::numeric_limits<std::int16_t>::min() &&
        rounded <= std::numeric_limits<std::int16_t>::max())) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(rounded);
}

}  // namespace veln
