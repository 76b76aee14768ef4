#pragma once

#include "desktop/program/form_window.h"
#include "forms/pct_form.h"

#include <array>

class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace veln {

/// "Coordinate Translation Options": changes the survey's coordinates for good. Mirrors `PctForm`.
class frmPCT : public FormWindow<PctForm> {
 public:
  static constexpr const char* Name = "frmPCT";

  frmPCT(Program& program, QWidget* parent);

 private:
  QLayout* MakeRotation();
  void Apply();
  void Mirror() final;

  std::array<QRadioButton*, 4> options_{};
  QLabel* degreesCaption_;
  QScrollBar* degreesBar_;
  QLineEdit* degreesText_;
  QPushButton* apply_;
};

}  // namespace veln
