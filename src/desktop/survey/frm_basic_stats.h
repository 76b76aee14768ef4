#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "Signal Transformation / Scaling Options".
class frmBasicStats : public ChildWindow {
 public:
  static constexpr const char* Name = "frmBasicStats";

  frmBasicStats(Program& program, QWidget* parent);
};

}  // namespace veln
