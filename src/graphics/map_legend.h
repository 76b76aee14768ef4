#pragma once

#include "graphics/plot_options.h"
#include "toolkit/drawing.h"

#include <array>
#include <string>

namespace veln {

/// What the classes of a map mean (`MapTag`): deviations of a signal from its mean, tag "n/a", or transition
/// scores, tag "TA".
enum class MapMeaning { Signal, Transition };

/// What `frmLegend` shows: its caption, and from the top, lowest class first, the colours of the four dots
/// and the labels `Label1` to `Label4` beside them.
struct MapLegend {
  std::string Caption;
  MapColours Colours;
  std::array<std::string, 4> Labels;
  bool operator==(const MapLegend&) const = default;
};

/// The legend of a map drawn in palette `number`.
MapLegend ComposeLegend(const PlotOptions& options, int number, MapMeaning meaning);

/// `frmLegend` on loading: the palette is the one chosen, whatever the map on screen was drawn in. The window
/// keeps what it shows.
MapLegend LoadLegend(const PlotOptions& options, MapMeaning meaning);

/// The dots of the legend window: 3480 by 1785 twips, 232 pixels wide, in twips from its top left corner. The
/// labels belong beside the dots, which stand at x = 440, y = 320, 680, 1040, 1400.
Drawing LegendDots(const MapLegend& legend);

}  // namespace veln
