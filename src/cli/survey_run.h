#pragma once

#include "cli/run_options.h"

#include <iosfwd>

namespace veln {

/// Where a run prints.
struct RunOutput {
  std::ostream& Out;
  std::ostream& Errors;
  bool Terminal = false;  ///< `Out` is a terminal: counters may update in place
};

/// Takes a survey from its raw file to saved designs, in the order of one run of the desktop program. Returns
/// the exit status: 0, or 1 when a file could not be written on the way. Throws Refusal for a step that is
/// refused; nothing behind that step is done.
int RunSurvey(const RunOptions& options, const RunOutput& output);

}  // namespace veln
