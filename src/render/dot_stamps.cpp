#include "render/dot_stamps.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr int Opaque = 255;

/// How much of a pixel, whose corner lies at (x, y) from the dot's centre, the dot covers.
std::uint8_t CoverageOf(double x, double y, double radius)
{
  constexpr int Samples = 8;
  int inside = 0;
  for (int row = 0; row < Samples; ++row) {
    for (int column = 0; column < Samples; ++column) {
      const double dx = x + (column + 0.5) / Samples;
      const double dy = y + (row + 0.5) / Samples;
      inside += dx * dx + dy * dy <= radius * radius ? 1 : 0;
    }
  }
  return static_cast<std::uint8_t>(inside * Opaque / (Samples * Samples));
}

QRgb Blend(QRgb below, QRgb ink, int coverage)
{
  const auto mix = [coverage](int from, int to) { return from + (to - from) * coverage / Opaque; };
  return qRgb(mix(qRed(below), qRed(ink)), mix(qGreen(below), qGreen(ink)), mix(qBlue(below), qBlue(ink)));
}

}  // namespace

DotStamps::DotStamps(const QPainter& painter)
{
  auto* image = dynamic_cast<QImage*>(painter.device());
  const QTransform& transform = painter.deviceTransform();
  const bool plain = transform.type() <= QTransform::TxScale && transform.m11() == transform.m22();
  if (image != nullptr && image->format() == QImage::Format_RGB32 && plain && !painter.hasClipping()) {
    pixels_ = reinterpret_cast<QRgb*>(image->bits());
    width_ = image->width();
    height_ = image->height();
    stride_ = image->bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    offset_ = QPointF(transform.dx(), transform.dy());
    scale_ = transform.m11();
  }
}

bool DotStamps::Paint(QPointF at, double diameter, QRgb ink)
{
  constexpr double Largest = 64;  // pixels
  const double size = diameter * scale_;
  if (pixels_ == nullptr || size > Largest) {
    return false;
  }
  const QPointF corner = at * scale_ + offset_ - QPointF(size, size) / 2;
  const auto left = static_cast<int>(std::floor(corner.x()));
  const auto top = static_cast<int>(std::floor(corner.y()));
  const Stamp& stamp = StampOf(size, static_cast<int>((corner.x() - left) * Phases),
                               static_cast<int>((corner.y() - top) * Phases));
  const int firstX = std::max(0, -left);
  const int lastX = std::min(stamp.Side, width_ - left);
  const int lastY = std::min(stamp.Side, height_ - top);
  for (int y = std::max(0, -top); y < lastY; ++y) {
    QRgb* line = pixels_ + stride_ * (top + y) + left;
    const std::uint8_t* coverage = stamp.Coverage.data() + static_cast<std::ptrdiff_t>(y) * stamp.Side;
    for (int x = firstX; x < lastX; ++x) {
      if (coverage[x] != 0) {
        line[x] = coverage[x] == Opaque ? ink : Blend(line[x], ink, coverage[x]);
      }
    }
  }
  return true;
}

const DotStamps::Stamp& DotStamps::StampOf(double size, int phaseX, int phaseY)
{
  if (sized_ == nullptr || size_ != size) {
    size_ = size;
    sized_ = &stamps_[size];
  }
  Stamp& stamp = sized_->at(static_cast<std::size_t>(phaseY * Phases + phaseX));
  if (stamp.Side == 0) {
    const auto at = [size](int phase) { return (phase + 0.5) / Phases + size / 2; };
    stamp.Side = static_cast<int>(std::ceil(size)) + 1;
    for (int y = 0; y < stamp.Side; ++y) {
      for (int x = 0; x < stamp.Side; ++x) {
        stamp.Coverage.push_back(CoverageOf(x - at(phaseX), y - at(phaseY), size / 2));
      }
    }
  }
  return stamp;
}

}  // namespace veln
