#pragma once

#include "desktop/graphics/plot_pane.h"

#include <QWidget>

#include <array>

class QLineEdit;

namespace veln {

/// The plot box in the middle of its labels and under its title, square and as large as its room.
class PlotBoard : public QWidget {
 public:
  explicit PlotBoard(QWidget* parent);

  /// Shows a plot with its title and its labels; the view stays unless `fit` is asked for.
  void Show(const Plot& plot, const MapFurniture& furniture, bool fit);
  [[nodiscard]] PlotPane& Pane() { return *pane_; }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void ShowLabels();
  void Arrange();
  [[nodiscard]] int LabelHeight() const;
  [[nodiscard]] int LabelColumn() const;

  PlotPane* pane_;
  const Plot* plot_ = nullptr;
  QLineEdit* title_;
  std::array<QLineEdit*, 3> labelsX_{};  // from left to right
  std::array<QLineEdit*, 3> labelsY_{};  // from the top
};

}  // namespace veln
