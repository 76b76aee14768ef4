#pragma once

#include <string>

namespace veln {

/// What the program noticed beyond its rules' own messages. Advice changes no result.
struct Advice {
  std::string Code;  ///< lower case with hyphens; stays the same from version to version
  std::string Text;

  bool operator==(const Advice&) const = default;
};

}  // namespace veln
