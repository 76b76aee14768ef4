#pragma once

#include "graphics/mark_layers.h"
#include "render/dot_stamps.h"
#include "render/drawing_painter.h"
#include "toolkit/drawing.h"

#include <QColor>
#include <QPen>

#include <optional>

class QPainter;

namespace veln {

QColor ToQt(Colour colour);

/// Paints marks on a device.
class MarkPainter {
 public:
  MarkPainter(QPainter& painter, const Drawing& drawing, const DrawingFrame& frame);

  void operator()(const DotMark& dot);
  void operator()(const LineMark& line) const;
  void operator()(const BoxMark& box) const;
  void operator()(const TextMark& text) const;

  /// Dots and lines of one pen as one path, or the one mark of another kind.
  void Stroke(const MarkLayer& layer);

 private:
  [[nodiscard]] QPointF Map(DrawPoint point) const { return frame_.Map(drawing_, point); }
  [[nodiscard]] QPen StrokeOf(const Pen& pen) const;

  QPainter& painter_;
  const Drawing& drawing_;
  const DrawingFrame& frame_;
  std::optional<DotStamps> stamps_;  // where pixels are whole
};

}  // namespace veln
