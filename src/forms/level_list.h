#pragma once

#include "design/design_run.h"

#include <string>

namespace veln {

/// What the listing of the design levels tells beside the settings of the next run.
struct LevelListing {
  DesignSettings Settings;
  int SignalCount = 1;
  bool Parsing = false;           ///< "Invoke Parsing" is on
  bool TransitionCounts = false;  ///< transition analysis was done and is not ignored
};

/// The text of `frmDList`: the levels in force, in lines that end with CR LF.
std::string ListDLevels(const LevelListing& listing);

}  // namespace veln
