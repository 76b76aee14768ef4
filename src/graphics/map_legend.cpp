#include "graphics/map_legend.h"

#include <cstddef>

namespace veln {

MapLegend ComposeLegend(const PlotOptions& options, int number, MapMeaning meaning)
{
  MapLegend legend;
  legend.Caption = number == GreyPalette ? "GrayScale Legend" : "ColorScale Legend";
  legend.Colours = ColoursOf(options, number);
  if (meaning == MapMeaning::Signal) {
    legend.Labels = {"< 1 STD below Signal mean", "0 to 1 STD below Signal mean",
                     "0 to 1 STD above Signal mean", "> 1 STD above Signal mean"};
  } else {
    legend.Labels = {"z1 TA-STD < 0.5", "0.5 < z1 TA-STD < 0.75", "0.75 < z1 TA-STD < 1.0",
                     "z1 TA-STD > 1.0"};
  }
  return legend;
}

MapLegend LoadLegend(const PlotOptions& options, MapMeaning meaning)
{
  return ComposeLegend(options, options.PaletteChoice, meaning);
}

Drawing LegendDots(const MapLegend& legend)
{
  constexpr double Width = 3480;  // twips
  constexpr double Height = 1785;
  constexpr double DotWidth = 10;
  constexpr double Column = 440;
  constexpr double FirstRow = 320;
  constexpr double RowStep = 360;
  constexpr int Paper = 15;
  Drawing drawing{0, 0, Width, Height, Width / TwipsPerPixel, {}, {}};
  drawing.FillBox({0, 0}, {Width, Height}, QBColor(Paper));
  for (std::size_t i = 0; i < legend.Colours.size(); ++i) {
    drawing.PSet({Column, FirstRow + RowStep * static_cast<double>(i)}, {legend.Colours.at(i), DotWidth});
  }
  return drawing;
}

}  // namespace veln
