#pragma once

#include "toolkit/drawing.h"

#include <QRectF>

#include <cstddef>

class QPainter;

namespace veln {

/// Where a drawing's logical coordinates lie on a device, and how much larger than its own size it is
/// painted.
struct DrawingFrame {
  QRectF Target;        ///< the whole surface, in device-independent pixels
  double Enlarged = 1;  ///< pens and fonts grow by this

  [[nodiscard]] QPointF Map(const Drawing& drawing, DrawPoint point) const;
};

/// The largest place inside `room` that keeps the drawing's aspect.
DrawingFrame FitDrawing(const Drawing& drawing, const QRectF& room);

/// Paints the marks from `first` on, in their order. A picture that has grown can be painted on where it
/// ended before.
void PaintDrawing(QPainter& painter, const Drawing& drawing, const DrawingFrame& frame,
                  std::size_t first = 0);

}  // namespace veln
