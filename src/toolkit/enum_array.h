#pragma once

#include <array>
#include <cstddef>

namespace veln {

/// One value for each of the `Count` enumerators of an enumeration that counts up from 0.
template <class Enum, class Value, std::size_t Count>
struct EnumArray {
  std::array<Value, Count> Values{};

  constexpr Value& operator[](Enum key) { return Values.at(static_cast<std::size_t>(key)); }
  constexpr const Value& operator[](Enum key) const { return Values.at(static_cast<std::size_t>(key)); }
};

}  // namespace veln
