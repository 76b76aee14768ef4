#include "render/drawing_painter.h"

#include "render/dot_stamps.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace veln {

namespace {

QColor ToQt(Colour colour)
{
  return {colour.Red, colour.Green, colour.Blue};
}

QRgb RgbOf(Colour colour)
{
  return qRgb(colour.Red, colour.Green, colour.Blue);
}

/// Paints one mark after the other on a device.
class MarkPainter {
 public:
  MarkPainter(QPainter& painter, const Drawing& drawing, const DrawingFrame& frame)
      : painter_(painter), drawing_(drawing), frame_(frame), stamps_(painter)
  {
  }

  void operator()(const DotMark& dot)
  {
    if (!stamps_.Paint(Map(dot.At), dot.Stroke.Width * frame_.Enlarged, RgbOf(dot.Stroke.Ink))) {
      painter_.setPen(StrokeOf(dot.Stroke));
      painter_.drawPoint(Map(dot.At));
    }
  }
  void operator()(const LineMark& line) const
  {
    painter_.setPen(StrokeOf(line.Stroke));
    painter_.drawLine(Map(line.From), Map(line.To));
  }
  void operator()(const BoxMark& box) const
  {
    const QRectF area = QRectF(Map(box.First), Map(box.Second)).normalized();
    if (box.Filled) {
      painter_.fillRect(area, ToQt(box.Stroke.Ink));
    } else {
      painter_.setPen(QPen(ToQt(box.Stroke.Ink), box.Stroke.Width * frame_.Enlarged, Qt::SolidLine,
                           Qt::SquareCap, Qt::MiterJoin));
      painter_.setBrush(Qt::NoBrush);
      painter_.drawRect(area);
    }
  }
  void operator()(const TextMark& text) const
  {
    QFont font = painter_.font();
    font.setPointSizeF(text.FontSize * frame_.Enlarged);
    font.setBold(text.Bold);
    painter_.setFont(font);
    painter_.setPen(ToQt(text.Ink));
    const QPointF top = Map(text.At);
    painter_.drawText(QPointF(top.x(), top.y() + QFontMetricsF(font, painter_.device()).ascent()),
                      QString::fromStdString(text.Text));
  }

 private:
  [[nodiscard]] QPointF Map(DrawPoint point) const { return frame_.Map(drawing_, point); }
  [[nodiscard]] QPen StrokeOf(const Pen& pen) const
  {
    return {ToQt(pen.Ink), pen.Width * frame_.Enlarged, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
  }

  QPainter& painter_;
  const Drawing& drawing_;
  const DrawingFrame& frame_;
  DotStamps stamps_;
};

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
  MarkPainter paint(painter, drawing, frame);
  for (std::size_t i = first; i < drawing.Marks.size(); ++i) {
    std::visit(paint, drawing.Marks[i]);
  }
  painter.restore();
}

}  // namespace veln
