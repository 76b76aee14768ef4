#include "graphics/plot_options.h"

#include <cstddef>

namespace veln {

const MapColours& Palette(int number)
{
  static constexpr std::array<MapColours, PaletteCount> Table = {
      {{{{255, 239, 0}, {255, 192, 0}, {192, 128, 64}, {128, 64, 64}}},
       {{{0, 255, 64}, {128, 192, 64}, {64, 128, 128}, {0, 64, 192}}},
       {{{128, 64, 64}, {192, 64, 128}, {255, 0, 192}, {255, 0, 32}}},
       {{{192, 192, 192}, {128, 128, 128}, {64, 64, 64}, {0, 0, 0}}}}};
  return Table.at(static_cast<std::size_t>(number) - 1);
}

const MapColours& ColourBlindSafePalette()
{
  // From yellow to dark violet, each class darker than the one before.
  static constexpr MapColours Table = {{{245, 205, 40}, {60, 175, 130}, {45, 95, 160}, {60, 10, 85}}};
  return Table;
}

const MapColours& ColoursOf(const PlotOptions& options, int number)
{
  return options.ColourBlindSafe ? ColourBlindSafePalette() : Palette(number);
}

}  // namespace veln
