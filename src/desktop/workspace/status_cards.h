#pragma once

#include <QWidget>

class QGroupBox;

namespace veln {

struct SurveyState;

/// The status panels of the main window as a column of cards in the order of the work: project, signals,
/// decorrelation, edge and transition, designs. Each shows once its step has run.
class StatusCards : public QWidget {
 public:
  explicit StatusCards(QWidget* parent);

  /// Puts the status texts of the record into the cards. Returns the last card that was not shown before, or
  /// null.
  QWidget* Mirror(const SurveyState& state);

 private:
  QGroupBox* project_;
  QGroupBox* signals_;
  QGroupBox* decorrelation_;
  QGroupBox* algorithms_;
  QGroupBox* designs_;
};

}  // namespace veln
