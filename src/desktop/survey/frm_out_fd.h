#pragma once

#include "desktop/program/child_window.h"
#include "survey/survey_export.h"

class QGroupBox;
class QLabel;
class QTimer;

namespace veln {

/// "Data File Export": exports the survey, then asks for the last confirmation of the exit.
class frmOutFD : public ChildWindow {
 public:
  static constexpr const char* Name = "frmOutFD";

  frmOutFD(Program& program, QWidget* parent);

 private:
  QGroupBox* MakeConfirmation();
  void Tick();
  void Export();
  void LblUpdate(int site);

  ExportTimer timer_;
  QTimer* timer1_;
  QLabel* label1_;
  QLabel* label2_;
  QGroupBox* confirmation_;
};

}  // namespace veln
