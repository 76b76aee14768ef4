#include "render/drawing_painter.h"

#include "render/layered_marks.h"
#include "render/mark_painter.h"

#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <span>

namespace veln {

QPointF DrawingFrame::Map(const Drawing& drawing, DrawPoint point) const
{
  return {Target.left() + (point.X - drawing.ScaleLeft) / drawing.ScaleWidth * Target.width(),
          Target.top() + (point.Y - drawing.ScaleTop) / drawing.ScaleHeight * Target.height()};
}

DrawingFrame FitDrawing(const Drawing& drawing, const QRectF& room)
{
  const double scale = std::min(room.width() / drawing.ScaleWidth, room.height() / drawing.ScaleHeight);
  QRectF target(0, 0, drawing.ScaleWidth * scale, drawing.ScaleHeight * scale);
  target.moveCenter(room.center());
  return {target, target.width() / drawing.PixelWidth};
}

void PaintDrawing(QPainter& painter, const Drawing& drawing, const DrawingFrame& frame, std::size_t first)
{
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  MarkPainter paint(painter, drawing, frame);
  const bool pixels = painter.paintEngine()->type() == QPaintEngine::Raster;
  const auto paintMarks = [&](std::size_t from, std::size_t to) {
    from = std::clamp(from, first, std::max(first, to));
    const auto marks = std::span(drawing.Marks).subspan(from, std::max(to, from) - from);
    if (!pixels) {
      PaintLayered(painter, drawing, marks, paint);
      return;
    }
    for (const DrawMark& mark : marks) {
      std::visit(paint, mark);
    }
  };
  const std::size_t count = drawing.Marks.size();
  first = std::min(first, count);
  const ClippedMarks clip = drawing.Clip.value_or(ClippedMarks{{}, {}, count, count});
  const std::size_t begin = std::min(clip.Begin, count);
  const std::size_t end = std::clamp(clip.End, begin, count);
  paintMarks(0, begin);
  if (end > std::max(begin, first)) {
    painter.save();
    painter.setClipRect(QRectF(frame.Map(drawing, clip.First), frame.Map(drawing, clip.Second)).normalized(),
                        Qt::IntersectClip);
    paintMarks(begin, end);
    painter.restore();
  }
  paintMarks(end, count);
  painter.restore();
}

}  // namespace veln
