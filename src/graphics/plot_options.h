#pragma once

#include "toolkit/drawing.h"

#include <array>

namespace veln {

inline constexpr int PaletteCount = 4;
inline constexpr int GreyPalette = 4;  ///< the palette that turns "ColorScale" into "GrayScale"
inline constexpr int SmallestSymbol = 1;
inline constexpr int LargestSymbol = 10;
inline constexpr int FewestPlaces = 2;
inline constexpr int MostPlaces = 5;

/// Four colours for the four classes of a map, the lowest signal first.
using MapColours = std::array<Colour, 4>;

/// `Palette`: the colours of palette 1 to 4.
const MapColours& Palette(int number);

/// Four classes that differ in lightness as well as in hue, so that every kind of colour vision tells them
/// apart, on paper too.
const MapColours& ColourBlindSafePalette();

/// What the plots of `frmSvyGraph` take as options.
struct PlotOptions {
  bool HighlightSamples = true;
  bool HighlightMasked = true;
  int SymbolSize = 4;     ///< pen width of map points in pixels, 1 to 10
  int PaletteChoice = 1;  ///< palette chosen, 1 to 4
  int MapPalette = 1;     ///< palette in force for maps and their titles
  int DecimalPlaces = 2;  ///< of coordinate labels, 2 to 5
  bool ScaleBar = false;
  bool NorthArrow = false;
  bool ColourBlindSafe = false;  ///< stands in for the palette's colours in maps and in a new legend
  bool operator==(const PlotOptions&) const = default;
};

/// The colours that a map in palette `number` is drawn with.
const MapColours& ColoursOf(const PlotOptions& options, int number);

}  // namespace veln
