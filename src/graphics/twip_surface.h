#pragma once

#include "toolkit/drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace veln {

/// A place in whole twips of a surface; y grows downward.
struct TwipPoint {
  std::int32_t X = 0;
  std::int32_t Y = 0;
  bool operator==(const TwipPoint&) const = default;
};

/// The surface of a drawing in twips, whole numbers, as files of shapes and layers want them.
struct TwipSurface {
  static constexpr double Far = 1E+6;  ///< twips, out of sight on every surface

  explicit TwipSurface(const Drawing& drawing)
      : Left(drawing.ScaleLeft),
        Top(drawing.ScaleTop),
        PerUnit(drawing.PixelWidth * TwipsPerPixel / drawing.ScaleWidth),
        PixelHeight(std::round(drawing.PixelWidth * drawing.ScaleHeight / drawing.ScaleWidth)),
        Width(static_cast<std::int32_t>(drawing.PixelWidth * TwipsPerPixel)),
        Height(static_cast<std::int32_t>(PixelHeight * TwipsPerPixel))
  {
  }

  /// Far places are drawn in to where they are still out of sight.
  [[nodiscard]] TwipPoint At(DrawPoint point) const
  {
    const auto whole = [](double value) {
      return static_cast<std::int32_t>(std::lround(std::isnan(value) ? Far : std::clamp(value, -Far, Far)));
    };
    return {whole((point.X - Left) * PerUnit), whole((point.Y - Top) * PerUnit)};
  }

  double Left, Top, PerUnit, PixelHeight;
  std::int32_t Width, Height;
};

}  // namespace veln
