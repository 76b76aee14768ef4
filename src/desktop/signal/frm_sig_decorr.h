#pragma once

#include "desktop/program/form_window.h"
#include "forms/sig_decorr_form.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace veln {

/// "Signal Decorrelation": the two levels, then how many sites stand above them.
class frmSigDecorr : public FormWindow<SigDecorrForm> {
 public:
  static constexpr const char* Name = "frmSigDecorr";

  frmSigDecorr(Program& program, QWidget* parent);

 private:
  QGroupBox* MakeOptions();
  QGroupBox* MakeResults();
  void Perform();
  void Mirror() final;

  QScrollBar* maskingBar_;
  QScrollBar* outlierBar_;
  QLineEdit* maskingText_;
  QLineEdit* outlierText_;
  QLabel* warning_;
  QGroupBox* results_;
  QLabel* aboveMasking_;
  QLabel* aboveOutlier_;
  QLabel* deleted_;
  QPushButton* perform_;
  QPushButton* wayOut_;
  QPushButton* list_;
};

}  // namespace veln
