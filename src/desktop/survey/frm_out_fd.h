#pragma once

#include "desktop/child_window.h"

namespace veln {

/// "Data File Export": exports the survey, then asks for the last confirmation of the exit.
class frmOutFD : public ChildWindow {
 public:
  static constexpr const char* Name = "frmOutFD";

  frmOutFD(Program& program, QWidget* parent);
};

}  // namespace veln
