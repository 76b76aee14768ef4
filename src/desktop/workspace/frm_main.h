#pragma once

#include "desktop/program.h"

#include <QMainWindow>

namespace veln {

/// The main window: the menus of the workflow and the status of the survey, as cards in the order of the
/// work.
class frmMain : public QMainWindow {
 public:
  explicit frmMain(Program& program);
};

}  // namespace veln
