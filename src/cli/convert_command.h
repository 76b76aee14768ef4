#pragma once

#include "cli/convert_options.h"

#include <iosfwd>

namespace veln {

/// Takes loggers' files to a raw survey and tells what became of every line. With `Show` nothing is written.
/// Throws Refusal for what the files do not allow; nothing is written then.
void RunConversion(const ConvertOptions& options, std::ostream& out);

}  // namespace veln
