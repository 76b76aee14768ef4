#pragma once

#include "design/design_scoring.h"
#include "desktop/program/child_window.h"
#include "toolkit/text_table.h"

#include <optional>

class QLayout;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;

namespace veln {

/// "Sample Design Optimization Results": the score of every combination of stratum and D-factor.
class frmSRSOpt : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSRSOpt";

  frmSRSOpt(Program& program, QWidget* parent, const SelectionScores& scores);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void FillGrid();
  [[nodiscard]] QTableWidgetItem* MakeScore(const Combination& combination, const std::string& text) const;
  void TintBest();
  QLayout* MakeButtons();
  void MakeMenus();
  [[nodiscard]] std::optional<Combination> Chosen() const;
  void SaveTable();
  void ShowUse();

  SelectionScores scores_;
  SelectionSummary summary_;
  TextTable table_;  // as shown, printed and saved
  QTableWidget* grid_ = nullptr;
  QPushButton* use_ = nullptr;
};

}  // namespace veln
