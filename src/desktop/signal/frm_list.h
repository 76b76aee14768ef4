#pragma once

#include "desktop/program/child_window.h"

namespace veln {

/// "Listing of all Outlier Sites": a snapshot of the last decorrelation's outliers.
class frmList : public ChildWindow {
 public:
  static constexpr const char* Name = "frmList";

  frmList(Program& program, QWidget* parent);
};

}  // namespace veln
