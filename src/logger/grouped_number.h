#pragma once

#include <cstddef>
#include <string>

namespace veln {

/// A count as a person reads it: "1,234,567".
inline std::string GroupedNumber(std::size_t number)
{
  constexpr std::ptrdiff_t GroupDigits = 3;
  std::string text = std::to_string(number);
  for (auto at = static_cast<std::ptrdiff_t>(text.size()) - GroupDigits; at > 0; at -= GroupDigits) {
    text.insert(static_cast<std::size_t>(at), ",");
  }
  return text;
}

}  // namespace veln
