#include "render/mark_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <algorithm>
#include <variant>

namespace veln {

namespace {

/// A filled box, at least as thick as its pen.
QRectF Thickened(const QRectF& box, double width)
{
  const double x = std::max(0.0, width - box.width()) / 2;
  const double y = std::max(0.0, width - box.height()) / 2;
  return box.adjusted(-x, -y, x, y);
}

/// Where a text begins, from its anchor, in shares of its width.
double ShareBefore(TextAnchor anchor)
{
  constexpr double Half = 0.5;
  if (anchor == TextAnchor::Start) {
    return 0;
  }
  return anchor == TextAnchor::Middle ? Half : 1;
}

}  // namespace

QColor ToQt(Colour colour)
{
  return {colour.Red, colour.Green, colour.Blue};
}

MarkPainter::MarkPainter(QPainter& painter, const Drawing& drawing, const DrawingFrame& frame)
    : painter_(painter), drawing_(drawing), frame_(frame)
{
  if (DotStamps::Suit(painter)) {
    stamps_.emplace(painter);
  }
}

void MarkPainter::operator()(const DotMark& dot)
{
  if (stamps_) {
    stamps_->Draw(Map(dot.At), {dot.Stroke.Ink, dot.Stroke.Width * frame_.Enlarged});
  } else {
    painter_.setPen(StrokeOf(dot.Stroke));
    painter_.drawPoint(Map(dot.At));
  }
}

void MarkPainter::operator()(const LineMark& line) const
{
  painter_.setPen(StrokeOf(line.Stroke));
  painter_.drawLine(Map(line.From), Map(line.To));
}

void MarkPainter::operator()(const BoxMark& box) const
{
  const QRectF area = QRectF(Map(box.First), Map(box.Second)).normalized();
  const double width = box.Stroke.Width * frame_.Enlarged;
  if (box.Filled) {
    painter_.fillRect(Thickened(area, width), ToQt(box.Stroke.Ink));
  } else {
    painter_.setPen(QPen(ToQt(box.Stroke.Ink), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(area);
  }
}

/// A drawing's pixel is the 96th part of an inch, whatever the device makes of an inch.
void MarkPainter::operator()(const TextMark& text) const
{
  constexpr double DrawingDpi = 96;
  QFont font = painter_.font();
  font.setPointSizeF(text.FontSize * frame_.Enlarged * DrawingDpi / painter_.device()->logicalDpiY());
  font.setBold(text.Bold);
  painter_.setFont(font);
  painter_.setPen(ToQt(text.Ink));
  const QString shown = QString::fromStdString(text.Text);
  const QFontMetricsF metrics(font, painter_.device());
  const QPointF top = Map(text.At);
  const double width = metrics.horizontalAdvance(shown);
  double left = top.x() - width * ShareBefore(text.Anchor);
  const double edge = frame_.Target.right();
  if (left < edge) {  // the number of a site near the edge stays whole
    left = std::min(left, edge - width - frame_.Enlarged);
  }
  painter_.drawText(QPointF(left, top.y() + metrics.ascent()), shown);
}

void MarkPainter::Stroke(const MarkLayer& layer)
{
  constexpr double Short = 0.001;  // a line too short to be seen has round ends, and is a dot
  QPainterPath path;
  for (const DrawMark* mark : layer.Marks) {
    if (const auto* dot = std::get_if<DotMark>(mark)) {
      path.moveTo(Map(dot->At));
      path.lineTo(Map(dot->At) + QPointF(Short, 0));
    } else if (const auto* line = std::get_if<LineMark>(mark)) {
      path.moveTo(Map(line->From));
      path.lineTo(Map(line->To));
    } else {
      std::visit(*this, *mark);
    }
  }
  if (!path.isEmpty()) {
    painter_.strokePath(path, StrokeOf(layer.Stroke));
  }
}

QPen MarkPainter::StrokeOf(const Pen& pen) const
{
  return {ToQt(pen.Ink), pen.Width * frame_.Enlarged, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

}  // namespace veln
