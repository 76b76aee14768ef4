#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "Signal Decorrelation".
class frmSigDecorr : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSigDecorr";

  frmSigDecorr(Program& program, QWidget* parent);
};

}  // namespace veln
