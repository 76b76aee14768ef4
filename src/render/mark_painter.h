#pragma once

#include "render/dot_stamps.h"
#include "render/drawing_painter.h"
#include "toolkit/drawing.h"

#include <QColor>
#include <QPen>

#include <optional>

class QPainter;

namespace veln {

QColor ToQt(Colour colour);

/// Paints one mark after the other on a device.
class MarkPainter {
 public:
  MarkPainter(QPainter& painter, const Drawing& drawing, const DrawingFrame& frame);

  void operator()(const DotMark& dot);
  void operator()(const LineMark& line) const;
  void operator()(const BoxMark& box) const;
  void operator()(const TextMark& text) const;

  /// Texts that begin left of `x`, in the device's coordinates, end there at the latest: the number of a site
  /// near the edge stays whole.
  void EndTextsAt(double x) { textEnd_ = x; }

  [[nodiscard]] QPointF Map(DrawPoint point) const { return frame_.Map(drawing_, point); }
  [[nodiscard]] QPen StrokeOf(const Pen& pen) const;

 private:
  QPainter& painter_;
  const Drawing& drawing_;
  const DrawingFrame& frame_;
  double textEnd_;
  std::optional<DotStamps> stamps_;  // where pixels are whole
};

}  // namespace veln
