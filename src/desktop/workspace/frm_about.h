#pragma once

#include "desktop/program/child_window.h"

namespace veln {

/// Name, version and makers of the program.
class frmAbout : public ChildWindow {
 public:
  static constexpr const char* Name = "frmAbout";

  frmAbout(Program& program, QWidget* parent);
};

}  // namespace veln
