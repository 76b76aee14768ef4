#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "File Structure and Import".
class frmStructure : public ChildWindow {
 public:
  static constexpr const char* Name = "frmStructure";

  frmStructure(Program& program, QWidget* parent);
};

}  // namespace veln
