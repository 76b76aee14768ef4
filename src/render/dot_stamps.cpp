#include "render/dot_stamps.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

QImage DrawDot(const Pen& pen)
{
  const int side = std::max(1, static_cast<int>(std::ceil(pen.Width)));
  QImage dot(side, side, QImage::Format_ARGB32_Premultiplied);
  dot.fill(Qt::transparent);
  QPainter painter(&dot);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(pen.Ink.Red, pen.Ink.Green, pen.Ink.Blue));
  painter.drawEllipse(QPointF(side / 2.0, side / 2.0), pen.Width / 2, pen.Width / 2);
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
