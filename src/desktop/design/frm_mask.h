#pragma once

#include "desktop/program/child_window.h"
#include "forms/mask_form.h"

class QCheckBox;
class QLabel;
class QLayout;
class QPlainTextEdit;
class QTableWidget;

namespace veln {

class FilteredEdit;

/// "Manual Sample Site Selection": picks sites by their number.
class frmMask : public ChildWindow {
 public:
  static constexpr const char* Name = "frmMask";

  frmMask(Program& program, QWidget* parent);

 private:
  QLayout* MakeEntry();
  QLayout* MakeAnswer();
  QLayout* MakeButtons();
  void Act(void (*action)(MaskForm&, SurveyState&));
  void Finish();
  void Mirror();

  MaskForm form_;
  FilteredEdit* number_;
  QLabel* answer_;
  QPlainTextEdit* list_;
  QCheckBox* save_;
  QTableWidget* sites_;
};

}  // namespace veln
