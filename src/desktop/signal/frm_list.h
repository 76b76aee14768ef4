#pragma once

#include "desktop/program/child_window.h"
#include "forms/outlier_list.h"

class QTableWidget;

namespace veln {

/// "Listing of all Outlier Sites": a snapshot of the last decorrelation's outliers.
class frmList : public ChildWindow {
 public:
  static constexpr const char* Name = "frmList";

  frmList(Program& program, QWidget* parent);

 private:
  void MakeMenus();

  QTableWidget* grid_;
};

}  // namespace veln
