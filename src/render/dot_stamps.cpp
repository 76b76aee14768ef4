#include "render/dot_stamps.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

/// The pixels whose middle lies on the disc, and always a whole pixel.
QImage DrawDot(const Pen& pen)
{
  const int side = std::max(1, static_cast<int>(std::lround(pen.Width)));
  QImage dot(side, side, QImage::Format_ARGB32_Premultiplied);
  dot.fill(Qt::transparent);
  const QColor ink(pen.Ink.Red, pen.Ink.Green, pen.Ink.Blue);
  const double middle = (side - 1) / 2.0;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      if (std::hypot(x - middle, y - middle) <= pen.Width / 2) {
        dot.setPixelColor(x, y, ink);
      }
    }
  }
  return dot;
}

}  // namespace

bool DotStamps::Suit(const QPainter& painter)
{
  return painter.paintEngine()->type() == QPaintEngine::Raster &&
         painter.deviceTransform().type() <= QTransform::TxTranslate;
}

void DotStamps::Draw(QPointF at, const Pen& pen)
{
  const QImage& dot = StampOf(pen).Dot;
  const double half = dot.width() / 2.0;
  painter_.drawImage(QPoint(qRound(at.x() - half), qRound(at.y() - half)), dot);
}

const DotStamps::Stamp& DotStamps::StampOf(const Pen& pen)
{
  if (last_ >= stamps_.size() || stamps_[last_].Stroke != pen) {
    const auto found = std::ranges::find(stamps_, pen, &Stamp::Stroke);
    last_ = static_cast<std::size_t>(found - stamps_.begin());
    if (found == stamps_.end()) {
      stamps_.push_back({pen, DrawDot(pen)});
    }
  }
  return stamps_[last_];
}

}  // namespace veln
