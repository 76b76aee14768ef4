#pragma once

#include <string>
#include <string_view>

namespace veln {

/// The text of a number that passes through a format and is then printed as a number: what
/// `NumberToString(RoundByFormat(value, pattern))` gives, quickly. Long tables print hundreds of thousands of
/// these.
std::string RoundedNumber(double value, std::string_view pattern);

}  // namespace veln
