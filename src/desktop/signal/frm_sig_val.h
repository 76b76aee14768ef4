#pragma once

#include "desktop/program/form_window.h"
#include "forms/sig_val_form.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace veln {

/// "Signal Validation": delete the outliers and decorrelate again, or accept the data as they stand.
class frmSigVal : public FormWindow<SigValForm> {
 public:
  static constexpr const char* Name = "frmSigVal";

  frmSigVal(Program& program, QWidget* parent);

 private:
  QGroupBox* MakeValidationOptions();
  QGroupBox* MakeTransitionOption();
  QGroupBox* MakeEdgeOptions();
  void Validate();
  void Mirror() final;

  QRadioButton* deleteOption_;
  QRadioButton* acceptOption_;
  QCheckBox* transition_;
  QLabel* transitionNote_;
  QCheckBox* edgeBuffering_;
  QLabel* rowCount_;
  QLabel* rowQuestion_;
  QRadioButton* rowsYes_;
  QRadioButton* rowsNo_;
};

}  // namespace veln
