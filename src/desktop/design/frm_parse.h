#pragma once

#include "desktop/program/form_window.h"
#include "forms/reduction_form.h"

#include <vector>

class QRadioButton;

namespace veln {

/// "Data Parsing / Stratification Details": the stratum of the next design.
class frmParse : public FormWindow<ParseForm> {
 public:
  static constexpr const char* Name = "frmParse";

  frmParse(Program& program, QWidget* parent);

 protected:
  void WayOut() override;

 private:
  void Invoke();
  void Mirror() final;

  std::vector<QRadioButton*> options_;  // by stratum
};

}  // namespace veln
