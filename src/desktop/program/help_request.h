#pragma once

#include <string>

namespace veln {

class Program;

/// Shows a help document ("hdoc04") in the one help window; a document that can't be loaded is warned of,
/// after a beep.
void RequestHelp(Program& program, const std::string& document);

}  // namespace veln
