#include "render/drawing_painter.h"

#include "graphics/mark_layers.h"
#include "render/mark_painter.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <span>
#include <variant>

namespace veln {

namespace {

/// Turns the painter to the pixels of its device, whatever a pixel of the window measures, so that dots can
/// be told to stand on whole ones; the frame in these pixels.
DrawingFrame InDevicePixels(QPainter& painter, const DrawingFrame& frame)
{
  const QTransform device = painter.deviceTransform();
  if (device.type() > QTransform::TxScale) {
    return frame;
  }
  painter.setTransform(device.inverted() * painter.transform());
  return {device.mapRect(frame.Target), frame.Enlarged * device.m11()};
}

}  // namespace

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
  // Pixels are painted over mark by mark. A page keeps every shape that it is told, so it is told few.
  const bool pixels = painter.paintEngine()->type() == QPaintEngine::Raster;
  const DrawingFrame place = pixels ? InDevicePixels(painter, frame) : frame;
  MarkPainter paint(painter, drawing, place);
  const auto paintMarks = [&](std::span<const DrawMark> marks) {
    if (pixels) {
      std::ranges::for_each(marks, [&paint](const DrawMark& mark) { std::visit(paint, mark); });
    } else {
      std::ranges::for_each(LayersOf(drawing, marks), [&paint](const auto& layer) { paint.Stroke(layer); });
    }
  };
  const DrawingParts parts = PartsOf(drawing, first);
  paintMarks(parts.Before);
  if (drawing.Clip && !parts.Clipped.empty()) {
    painter.save();
    painter.setClipRect(
        QRectF(place.Map(drawing, drawing.Clip->First), place.Map(drawing, drawing.Clip->Second))
            .normalized(),
        Qt::IntersectClip);
    paintMarks(parts.Clipped);
    painter.restore();
  }
  paintMarks(parts.Behind);
  painter.restore();
}

}  // namespace veln
