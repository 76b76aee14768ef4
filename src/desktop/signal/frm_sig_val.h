#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "Signal Validation".
class frmSigVal : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSigVal";

  frmSigVal(Program& program, QWidget* parent);
};

}  // namespace veln
