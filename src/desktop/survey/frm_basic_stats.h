#pragma once

#include "desktop/program/form_window.h"
#include "survey/signal_transform.h"

#include <array>

class QCheckBox;
class QGroupBox;

namespace veln {

/// "Signal Transformation / Scaling Options": logarithms, units and labels of the signals.
class frmBasicStats : public FormWindow<BasicStatsForm> {
 public:
  static constexpr const char* Name = "frmBasicStats";

  frmBasicStats(Program& program, QWidget* parent);

 private:
  QGroupBox* MakeTransformOptions();
  QGroupBox* MakeScalingOptions();
  void Compute();
  void Mirror() final;

  std::array<QCheckBox*, 4> checks_{};  // `Check1` to `Check4`
};

}  // namespace veln
