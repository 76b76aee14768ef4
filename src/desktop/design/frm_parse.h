#pragma once

#include "desktop/program/child_window.h"
#include "forms/reduction_form.h"

#include <array>

class QRadioButton;

namespace veln {

/// "Data Parsing / Stratification Details": the stratum of the next design.
class frmParse : public ChildWindow {
 public:
  static constexpr const char* Name = "frmParse";

  frmParse(Program& program, QWidget* parent);

 protected:
  void WayOut() override;

 private:
  static constexpr std::size_t Options = 9;

  void Mirror();

  ParseForm form_;
  std::array<QRadioButton*, Options> options_{};
};

}  // namespace veln
