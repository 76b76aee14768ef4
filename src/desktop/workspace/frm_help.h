#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "VELN-QTRD OnLine Help": the one window in which all help documents show.
class frmHelp : public ChildWindow {
 public:
  static constexpr const char* Name = "frmHelp";

  frmHelp(Program& program, QWidget* parent);
};

}  // namespace veln
