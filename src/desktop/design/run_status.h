#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace veln {

/// The status line of frmSRS, and at its end the progress of an automatic selection with the button that
/// stops it.
class RunStatus : public QWidget {
 public:
  explicit RunStatus(QWidget* parent);

  /// Keeps a text as the last of the run; the tool-tip tells the last twenty.
  void Keep(const QString& text);
  /// Shows the last text.
  void ShowLast();

  /// Shows the progress of a selection: design `k` of `n` is in work, `text` tells the rest.
  void ShowProgress(int k, int n, const QString& text);
  void HideProgress();
  [[nodiscard]] QPushButton& Stop() { return *stop_; }

 private:
  QLabel* text_;
  QStringList last_;
  QWidget* selection_;
  QProgressBar* progress_;
  QLabel* score_;
  QPushButton* stop_;
};

}  // namespace veln
