#pragma once

#include "logger/conversion.h"

#include <string>

namespace veln {

/// The report of a conversion as text: what was recognised, where the lines went, extent, track, rows,
/// signals, and what looks wrong.
std::string ConversionReport(const Conversion& conversion);

}  // namespace veln
