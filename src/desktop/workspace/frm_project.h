#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "Create / Set Project and Define Field ID Code".
class frmProject : public ChildWindow {
 public:
  static constexpr const char* Name = "frmProject";

  frmProject(Program& program, QWidget* parent);
};

}  // namespace veln
