#pragma once

#include "survey/data_load.h"

#include <string>
#include <string_view>

namespace veln {

/// Where a raw survey file is at fault, for a file that `DataLoad` refuses, in one line: the first item that
/// is not a number ("record 800, s1: "n/a" is not a number"), the number of lines where it is too small or
/// too large, the first line with another number of items, readings of 0 or less where logarithms are wanted,
/// or the first invalid row number. Empty where none of these is found.
std::string ImportFault(std::string_view content, const RecordLayout& layout, bool log);

}  // namespace veln
