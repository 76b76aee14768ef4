#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "Default Text Editor & File Input Path Specifications".
class frmFileIO : public ChildWindow {
 public:
  static constexpr const char* Name = "frmFileIO";

  frmFileIO(Program& program, QWidget* parent);
};

}  // namespace veln
