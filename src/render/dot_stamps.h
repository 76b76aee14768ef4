#pragma once

#include "toolkit/drawing.h"

#include <QImage>
#include <QPointF>

#include <vector>

class QPainter;

namespace veln {

/// Draws many round dots fast: a dot is drawn once for each colour and width, antialiased, and stamped at
/// whole pixels of the device, at most half a pixel from its place. For pictures made of pixels alone.
class DotStamps {
 public:
  /// Whether whole pixels of the painter's device can be told.
  static bool Suit(const QPainter& painter);

  explicit DotStamps(QPainter& painter) : painter_(painter) {}

  /// A dot of the pen's width, in pixels of the device.
  void Draw(QPointF at, const Pen& pen);

 private:
  struct Stamp {
    Pen Stroke;
    QImage Dot;
  };
  const Stamp& StampOf(const Pen& pen);

  QPainter& painter_;
  std::vector<Stamp> stamps_;
  std::size_t last_ = 0;  // the stamp used last
};

}  // namespace veln
