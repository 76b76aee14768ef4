#pragma once

#include "desktop/program/child_window.h"

#include <QString>

namespace veln {

/// "Design Level Information": the pattern of targets that the next design will use, as it stood when the
/// window opened.
class frmDList : public ChildWindow {
 public:
  static constexpr const char* Name = "frmDList";

  frmDList(Program& program, QWidget* parent);
};

}  // namespace veln
