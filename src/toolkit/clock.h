#pragma once

#include <functional>
#include <string>

namespace veln {

/// Tells the present date and time as output files show them: "2026-11-22 14:05:09", local time.
using Clock = std::function<std::string()>;

/// The system's clock.
std::string SystemDateTime();

}  // namespace veln
