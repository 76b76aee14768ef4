#pragma once

#include "toolkit/drawing.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

namespace veln {

/// Shows a drawing, square and as large as its room. What was drawn stays in a picture, so that a drawing
/// that grows is painted on; while it grows it is repainted at once, but at most 60 times a second, and its
/// last state always shows.
class DrawingView : public QWidget {
 public:
  explicit DrawingView(QWidget* parent);

  /// The drawing shown; it must outlive the view.
  void Show(const Drawing& drawing);
  /// The drawing has new marks, or was cleared and begun anew.
  void Grown();
  /// Rings a place of the drawing, or none.
  void Ring(const std::optional<DrawPoint>& place);
  /// Told where the pointer is, in the drawing's coordinates, and how long a pixel is in them; none when it
  /// has left.
  std::function<void(std::optional<DrawPoint> place, double pixel)> Pointed;

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void BringPictureUpToDate();

  const Drawing* drawing_ = nullptr;
  QImage picture_;
  std::size_t painted_ = 0;  // marks of the drawing that the picture holds
  QElapsedTimer sinceRepaint_;
  QTimer lastRepaint_;  // for what has come since
  std::optional<DrawPoint> ring_;
};

}  // namespace veln
