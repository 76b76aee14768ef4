#pragma once

#include <QPointF>
#include <QRgb>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

class QPainter;

namespace veln {

/// Paints round, smooth-edged dots on an image faster than its painter, which makes an outline of each: a map
/// of the largest survey has 30,000 of them and is painted anew with each design.
class DotStamps {
 public:
  /// For dots among what `painter` paints. It paints none unless its device is an opaque 32-bit image without
  /// clipping, turning or shearing.
  explicit DotStamps(const QPainter& painter);

  /// Paints a dot at a place and with a diameter in the painter's coordinates. False if the painter has to.
  bool Paint(QPointF at, double diameter, QRgb ink);

 private:
  static constexpr int Phases = 4;  // a dot stands at one of 4 by 4 places inside a pixel

  /// How much of each pixel of a square a dot covers, 0 to 255.
  struct Stamp {
    int Side = 0;
    std::vector<std::uint8_t> Coverage;
  };

  const Stamp& StampOf(double size, int phaseX, int phaseY);

  using StampsOfSize = std::array<Stamp, static_cast<std::size_t>(Phases) * Phases>;

  QRgb* pixels_ = nullptr;  // of the image; none if the painter has to paint
  int width_ = 0;
  int height_ = 0;
  std::ptrdiff_t stride_ = 0;  // from one line of pixels to the next
  QPointF offset_;
  double scale_ = 1;
  std::map<double, StampsOfSize> stamps_;  // by diameter in pixels
  double size_ = 0;                        // the diameter of the last dot
  StampsOfSize* sized_ = nullptr;          // and its stamps
};

}  // namespace veln
