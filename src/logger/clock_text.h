#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace veln {

/// How the parts of a date are ordered.
enum class DateOrder { DayFirst, MonthFirst, YearFirst };

/// How a column tells the time.
enum class ClockStyle {
  None,
  TimeOfDay,     ///< 10:44:01.48, with or without a date before it
  PackedClock,   ///< 104401.48
  Seconds,       ///< a count of seconds
  Milliseconds,  ///< a count of milliseconds
};

/// The three numbers of a date in the order written. A month by name makes the order plain.
struct DateParts {
  std::array<int, 3> Numbers{};
  std::optional<DateOrder> Order;  ///< where the parts themselves tell it

  bool operator==(const DateParts&) const = default;
};

/// A time as written: seconds since midnight or since the logger's own beginning, and the date beside it.
struct ClockTime {
  double Seconds = 0;
  std::optional<DateParts> Date;
};

/// Reads `2024-03-05`, `5/03/2024`, `5.3.24`, `05-Mar-2024`, `20240305` or `050324`. Empty for anything else.
std::optional<DateParts> ParseDate(std::string_view text);

/// Reads a time of the style told. Empty if it is none.
std::optional<ClockTime> ParseClock(std::string_view text, ClockStyle style);

/// Days from 1970-01-01 in the Gregorian calendar; years of two digits lie in 1980 to 2079. Empty where there
/// is no such date.
std::optional<int> DayNumber(const DateParts& date, DateOrder order);

/// "2024-03-05" of a day number.
std::string DateText(int dayNumber);

/// "10:44:01.48": seconds since midnight with as many decimals as they need, three at most.
std::string ClockText(double seconds);

}  // namespace veln
