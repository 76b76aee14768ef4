#include "toolkit/text_lines.h"

#include <algorithm>

namespace veln {

std::string_view TakeLine(std::string_view& rest)
{
  const std::string_view line = rest.substr(0, rest.find_first_of("\r\n"));
  const bool pair = rest.substr(line.size(), 2) == "\r\n";
  rest.remove_prefix(std::min(line.size() + (pair ? 2 : 1), rest.size()));
  return line;
}

}  // namespace veln
