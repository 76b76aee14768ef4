#pragma once

#include "logger/conversion.h"

#include <string>

namespace veln {

/// Counts readings of 0 or less, before any are joined.
void CountNonPositive(Conversion& conversion);

/// Counts the lines of all files by what became of them.
void FinishAccount(Conversion& conversion);

/// The sites' signals, extent and spacing.
void Summarise(Conversion& conversion);

/// What looks wrong.
void Advise(Conversion& conversion);

/// The account as lines of text, one for each kind of line that there is, with the first line numbers.
std::string AccountText(const Conversion& conversion);

}  // namespace veln
