#include "render/dot_stamps.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

/// A single pixel, or the nearest even width: dots about a corner of pixels share their middle, so that a
/// wide one covers all of a narrower one at its place.
int SideOf(double width)
{
  constexpr double TwoPixels = 1.5;  // the least width for them
  return width < TwoPixels ? 1 : 2 * static_cast<int>(std::lround(width / 2));
}

/// The pixels whose middle lies on the disc.
QImage DrawDot(const Pen& pen)
{
  const int side = SideOf(pen.Width);
  QImage dot(side, side, QImage::Format_ARGB32_Premultiplied);
  dot.fill(Qt::transparent);
  const QColor ink(pen.Ink.Red, pen.Ink.Green, pen.Ink.Blue);
  const double radius = side / 2.0;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      if (std::hypot(x + 0.5 - radius, y + 0.5 - radius) <= radius) {
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
