#pragma once

#include "cli/run_options.h"

namespace veln {

/// Refuses (usage) a run of which an output would be the survey or another output, through links and relative
/// paths, too. All names that files of the field can have count.
void RefuseSharedOutputs(const RunOptions& options);

}  // namespace veln
