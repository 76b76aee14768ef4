#include "logger/clock_text.h"

#include "logger/field_split.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <chrono>
#include <cmath>

namespace veln {

namespace {

constexpr double SecondsPerMinute = 60;
constexpr double SecondsPerHour = 3600;
constexpr double SecondsPerDay = 86'400;
constexpr int HighestYearPart = 99;

std::optional<int> TakeWhole(std::string_view& text)
{
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || text.front() == '-') {
    return std::nullopt;
  }
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

bool TakeOneOf(std::string_view& text, std::string_view characters)
{
  const bool found = !text.empty() && characters.find(text.front()) != std::string_view::npos;
  text.remove_prefix(found ? 1 : 0);
  return found;
}

/// The month that a text begins with by its English name, 1 to 12; takes the name.
std::optional<int> TakeMonthName(std::string_view& text)
{
  constexpr std::string_view Names = "janfebmaraprmayjunjulaugsepoctnovdec";
  constexpr std::size_t Letters = 3;
  std::string name(text.substr(0, Letters));
  std::ranges::transform(name, name.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  const std::size_t at = name.size() == Letters ? Names.find(name) : std::string_view::npos;
  if (at == std::string_view::npos || at % Letters != 0) {
    return std::nullopt;
  }
  while (!text.empty() && std::isalpha(static_cast<unsigned char>(text.front())) != 0) {
    text.remove_prefix(1);
  }
  return static_cast<int>(at / Letters) + 1;
}

/// 20240305, or 050324 as NMEA 0183 writes it.
std::optional<DateParts> UnpackDate(std::string_view digits)
{
  constexpr std::size_t WithCentury = 8;
  constexpr std::size_t WithoutCentury = 6;
  const bool century = digits.size() == WithCentury;
  if (!century && digits.size() != WithoutCentury) {
    return std::nullopt;
  }
  DateParts date;
  const std::array<std::size_t, 4> cuts = {0, century ? 4U : 2U, century ? 6U : 4U, digits.size()};
  for (std::size_t i = 0; i < 3; ++i) {
    std::string_view part = digits.substr(cuts.at(i), cuts.at(i + 1) - cuts.at(i));
    date.Numbers.at(i) = TakeWhole(part).value_or(0);
  }
  date.Order = century ? DateOrder::YearFirst : DateOrder::DayFirst;
  return date;
}

/// Takes a date of three parts off the beginning of a text.
std::optional<DateParts> TakeDate(std::string_view& text)
{
  constexpr std::string_view Marks = "-/. ";
  DateParts date;
  for (std::size_t i = 0; i < 3; ++i) {
    if (i > 0 && !TakeOneOf(text, Marks)) {
      return std::nullopt;
    }
    const auto month = i == 1 ? TakeMonthName(text) : std::nullopt;
    auto number = month;
    if (!month && !text.empty()) {
      number = TakeWhole(text);
    }
    if (!number) {
      return std::nullopt;
    }
    date.Numbers.at(i) = *number;
    if (month) {
      date.Order = date.Numbers[0] > HighestYearPart ? DateOrder::YearFirst : DateOrder::DayFirst;
    }
  }
  if (date.Numbers[0] > HighestYearPart) {
    date.Order = DateOrder::YearFirst;
  }
  return date;
}

/// Takes "10:44", "10:44:01.48" and a following AM or PM.
std::optional<double> TakeClock(std::string_view& text)
{
  constexpr int HoursPerHalfDay = 12;
  auto hours = text.empty() ? std::nullopt : TakeWhole(text);
  if (!hours || !TakeOneOf(text, ":")) {
    return std::nullopt;
  }
  const auto minutes = text.empty() ? std::nullopt : TakeWhole(text);
  double seconds = 0;
  if (minutes && TakeOneOf(text, ":")) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    if (error != std::errc()) {
      return std::nullopt;
    }
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  }
  text = TrimField(text);
  const bool afternoon = !text.empty() && (text[0] == 'P' || text[0] == 'p');
  if (text.size() >= 2 && (text[1] == 'M' || text[1] == 'm') && TakeOneOf(text, "AaPp")) {
    hours = *hours % HoursPerHalfDay + (afternoon ? HoursPerHalfDay : 0);
    text.remove_prefix(1);
  }
  const double all = *hours * SecondsPerHour + minutes.value_or(-1) * SecondsPerMinute + seconds;
  const bool sound = minutes && *minutes < SecondsPerMinute && seconds >= 0 && seconds <= SecondsPerMinute &&
                     all <= SecondsPerDay;
  return sound ? std::optional(all) : std::nullopt;
}

std::optional<ClockTime> ReadClock(std::string_view text)
{
  ClockTime time;
  if (text.find(':') > 2) {
    time.Date = TakeDate(text);
    if (!time.Date || !TakeOneOf(text, "T ,")) {
      return std::nullopt;
    }
    text = TrimField(text);
  }
  const auto seconds = TakeClock(text);
  if (!seconds) {
    return std::nullopt;
  }
  // "Z" or an offset from UTC may follow; all times of a file share it.
  if (!text.empty() && text.front() != 'Z' && text.front() != '+' && text.front() != '-' &&
      text.front() != 'U') {
    return std::nullopt;
  }
  time.Seconds = *seconds;
  return time;
}

/// 104401.48
std::optional<ClockTime> UnpackClock(std::string_view text)
{
  constexpr double Hundred = 100;
  constexpr double MostHours = 24;
  const auto number = ParseNumber(text);
  if (!number || *number < 0) {
    return std::nullopt;
  }
  const double hours = std::floor(*number / (Hundred * Hundred));
  const double minutes = std::floor((*number - hours * Hundred * Hundred) / Hundred);
  const double seconds = *number - (hours * Hundred + minutes) * Hundred;
  if (hours >= MostHours || minutes >= SecondsPerMinute || seconds >= SecondsPerMinute) {
    return std::nullopt;
  }
  return ClockTime{hours * SecondsPerHour + minutes * SecondsPerMinute + seconds, std::nullopt};
}

}  // namespace

std::optional<DateParts> ParseDate(std::string_view text)
{
  text = TrimField(text);
  if (text.find_first_not_of("0123456789") == std::string_view::npos) {
    return UnpackDate(text);
  }
  const auto date = TakeDate(text);
  return text.empty() || text.front() == 'T' || text.front() == ' ' ? date : std::nullopt;
}

std::optional<ClockTime> ParseClock(std::string_view text, ClockStyle style)
{
  constexpr double MillisecondsPerSecond = 1000;
  switch (style) {
    case ClockStyle::TimeOfDay:
      return ReadClock(text);
    case ClockStyle::PackedClock:
      return UnpackClock(text);
    case ClockStyle::Seconds:
    case ClockStyle::Milliseconds:
      if (const auto number = ParseNumber(text)) {
        return ClockTime{style == ClockStyle::Seconds ? *number : *number / MillisecondsPerSecond,
                         std::nullopt};
      }
      return std::nullopt;
    case ClockStyle::None:
      break;
  }
  return std::nullopt;
}

std::optional<int> DayNumber(const DateParts& date, DateOrder order)
{
  constexpr int FirstTwoDigitYear = 80;
  constexpr int Century20 = 1900;
  constexpr int Century21 = 2000;
  const auto [a, b, c] = date.Numbers;
  order = date.Order.value_or(order);
  int year = order == DateOrder::YearFirst ? a : c;
  if (year <= HighestYearPart) {
    year += year < FirstTwoDigitYear ? Century21 : Century20;
  }
  const int month = order == DateOrder::MonthFirst ? a : b;
  const int dayBehindMonth = order == DateOrder::MonthFirst ? b : c;
  const int day = order == DateOrder::DayFirst ? a : dayBehindMonth;
  const std::chrono::year_month_day calendar(std::chrono::year(year),
                                             std::chrono::month(static_cast<unsigned>(std::max(month, 0))),
                                             std::chrono::day(static_cast<unsigned>(std::max(day, 0))));
  if (!calendar.ok()) {
    return std::nullopt;
  }
  return static_cast<int>(std::chrono::sys_days(calendar).time_since_epoch().count());
}

std::string DateText(int dayNumber)
{
  const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(dayNumber))};
  return FormatNumber(static_cast<int>(date.year()), "0000") + "-" +
         FormatNumber(static_cast<unsigned>(date.month()), "00") + "-" +
         FormatNumber(static_cast<unsigned>(date.day()), "00");
}

std::string ClockText(double seconds)
{
  constexpr double Thousandths = 1000;
  double rest = std::nearbyint(std::fmod(seconds, SecondsPerDay) * Thousandths) / Thousandths;
  const double hours = std::floor(rest / SecondsPerHour);
  rest -= hours * SecondsPerHour;
  const double minutes = std::floor(rest / SecondsPerMinute);
  return FormatNumber(hours, "00") + ":" + FormatNumber(minutes, "00") + ":" +
         FormatNumber(rest - minutes * SecondsPerMinute, "00.###");
}

}  // namespace veln
