#pragma once

#include "desktop/program/child_window.h"

namespace veln {

/// "ColorScale Legend": what the colours of a map mean. Keeps what it showed when it was opened.
class frmLegend : public ChildWindow {
 public:
  static constexpr const char* Name = "frmLegend";

  frmLegend(Program& program, QWidget* parent);
};

}  // namespace veln
