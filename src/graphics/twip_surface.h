#pragma once

#include "graphics/mark_layers.h"
#include "toolkit/drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace veln {

inline constexpr double TwipsPerPixel = 15;

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
  [[nodiscard]] UnitPoint At(DrawPoint point) const
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
