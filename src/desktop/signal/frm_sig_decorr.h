#pragma once

#include "desktop/program/child_window.h"
#include "forms/sig_decorr_form.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace veln {

/// "Signal Decorrelation": the two levels, then how many sites stand above them.
class frmSigDecorr : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSigDecorr";

  frmSigDecorr(Program& program, QWidget* parent);

  /// The counts of the last run (`RetrieveCounts`).
  [[nodiscard]] const DecorrelationCounts& Counts() const { return form_.Counts; }

 private:
  QGroupBox* MakeOptions();
  QGroupBox* MakeResults();
  QScrollBar* MakeBar(const char* name, int level, void (*moveLevel)(SigDecorrForm&, int));
  void Mirror();

  SigDecorrForm form_;
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
