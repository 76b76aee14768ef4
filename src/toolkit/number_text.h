#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace veln {

/// The general text form of a number: at most 15 significant digits, no zero before the point, no blanks
/// (".5", "-.25", "3"). Plain decimals below 1E+15 wherever 15 places behind the point suffice, otherwise the
/// form "3.33333333333333E-02". The value must be finite. A zero has no minus sign.
std::string GeneralForm(double value);

/// The number-to-string form of messages and status lines: the general form, with one leading blank in place
/// of the sign of a non-negative number (" .5", "-.25", " 3").
std::string NumberToString(double value);

/// A count of things: "1 site", "1500 sites".
std::string Counted(std::int64_t count, const std::string& thing);

/// The form of a number in a text file: the number-to-string form and one trailing blank (" .5 ").
std::string PrintedNumber(double value);

/// A number as a format pattern shows it ("0.00", "##0.000", "0.0#####"). "0" is a digit that always shows,
/// "#" one that shows only if needed. Rounds halves away from zero on the decimal form with 15 significant
/// digits, as a person reads the number: 1.575, held as 1.57499999999999996, shows as 1.58 with "0.00".
std::string FormatNumber(double value, std::string_view pattern);

/// The value that `FormatNumber` shows, as a double again: the pattern only bounds its decimals.
double RoundByFormat(double value, std::string_view pattern);

/// The shortest text that `ParseNumber` reads back as the same double (".5" stands as "0.5"): plain decimals
/// from 1E-5 to below 1E+15, otherwise the form "3e-07". The value must be finite. A zero has no minus sign.
std::string ShortestForm(double value);

/// Reads one number: optional sign, digits with an optional point, optional exponent with E or e, nothing
/// else. Text beyond the doubles (1E999) is not a number; text below them (1E-999) is 0.
std::optional<double> ParseNumber(std::string_view text);

/// Rounds to the nearest 16-bit integer, a tie to the even neighbour. Empty when that leaves the 16 bits.
std::optional<std::int16_t> RoundToInt16(double value);

}  // namespace veln
