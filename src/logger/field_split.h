#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// Stands for runs of blanks and tabs as separator.
inline constexpr char BlankRuns = ' ';

/// Cuts a line into at most `most` fields, without the blanks around them. With `quotes` a field that begins
/// with a double quote runs to the next single one on its line; what is between is taken without them.
void SplitFields(std::string_view line, char separator, bool quotes, std::vector<std::string_view>& fields,
                 std::size_t most = static_cast<std::size_t>(-1));

/// A text without blanks, tabs and NUL bytes around it.
std::string_view TrimField(std::string_view text);

/// Reads a number with a decimal point, or with a comma in its place. Empty if it is none.
std::optional<double> ParseField(std::string_view text, bool decimalComma);

/// A text of the file as UTF-8: Latin-1 is converted, and bytes that are no UTF-8 become U+FFFD.
std::string FieldText(std::string_view text, bool latin1);

}  // namespace veln
