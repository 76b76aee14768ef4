#pragma once

#include <string>
#include <vector>

namespace veln {

/// A table of text cells with its headings; every row has a cell for each heading.
struct TextTable {
  std::vector<std::string> Headings;
  std::vector<std::vector<std::string>> Rows;
};

}  // namespace veln
