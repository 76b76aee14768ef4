#pragma once

#include "toolkit/drawing.h"

#include <QImage>
#include <QPointF>

#include <cstddef>
#include <vector>

class QPainter;

namespace veln {

/// Draws many round dots fast, for pictures made of pixels alone: a dot is made once for each colour and
/// width, and stamped at whole pixels of the device, at most half a pixel from its place.
///
/// A stamp is of full colour wherever it covers anything, so that a dot of a pixel or two is as dark as its
/// pen, equal sites look equal, and a dot over a dot leaves no ring of the hidden one.
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
