#pragma once

#include "desktop/program/child_window.h"
#include "survey/signal_transform.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;

namespace veln {

/// "Signal Transformation / Scaling Options": logarithms, units and labels of the signals, before
/// decorrelation.
class frmBasicStats : public ChildWindow {
 public:
  static constexpr const char* Name = "frmBasicStats";

  frmBasicStats(Program& program, QWidget* parent);

 private:
  QGroupBox* MakeTransformOptions();
  QGroupBox* MakeScalingOptions();
  void Compute();

  BasicStatsForm form_;
  QLineEdit* label1_;
  QLineEdit* label2_;
};

}  // namespace veln
