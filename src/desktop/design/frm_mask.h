#pragma once

#include "desktop/program/form_window.h"
#include "forms/mask_form.h"

class QCheckBox;
class QLabel;
class QLayout;
class QPlainTextEdit;

namespace veln {

class FilteredEdit;
class SiteTable;

/// "Manual Sample Site Selection": picks sites by their number.
class frmMask : public FormWindow<MaskForm> {
 public:
  static constexpr const char* Name = "frmMask";

  frmMask(Program& program, QWidget* parent);

 private:
  QLayout* MakeEntry();
  QLayout* MakeAnswer();
  void Act(void (*action)(MaskForm&, SurveyState&));
  void Finish();
  void Mirror() final;

  FilteredEdit* number_;
  QLabel* answer_;
  QPlainTextEdit* list_;
  QCheckBox* save_;
  SiteTable* sites_;
};

}  // namespace veln
