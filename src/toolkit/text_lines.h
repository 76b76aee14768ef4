#pragma once

#include <string_view>

namespace veln {

/// Takes the next line off `rest`, without its end: CR LF, LF or CR. A last line needs no end. `rest` must
/// not be empty.
std::string_view TakeLine(std::string_view& rest);

}  // namespace veln
