#pragma once

#include "desktop/program/child_window.h"
#include "forms/sig_val_form.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;

namespace veln {

/// "Signal Validation": delete the outliers and decorrelate again, or accept the data as they stand.
class frmSigVal : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSigVal";

  frmSigVal(Program& program, QWidget* parent);

 private:
  QGroupBox* MakeValidationOptions();
  QGroupBox* MakeEdgeOptions();
  QGroupBox* MakeTransitionOption();
  void Validate();
  void Mirror();

  SigValForm form_;
  QRadioButton* deleteOption_;
  QRadioButton* acceptOption_;
  QCheckBox* edgeBuffering_;
  QLabel* rowCount_;
  QLabel* rowQuestion_;
  QRadioButton* rowsYes_;
  QRadioButton* rowsNo_;
  QCheckBox* transition_;
  QLabel* transitionNote_;
  QPushButton* validate_;
};

}  // namespace veln
