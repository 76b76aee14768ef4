#pragma once

#include "graphics/plot.h"
#include "graphics/plot_axes.h"
#include "graphics/site_map.h"
#include "toolkit/drawing.h"

#include <string>
#include <vector>

namespace veln {

/// What may stand on a map besides the sites.
struct MapFurniture {
  bool ScaleBar = false;
  bool NorthArrow = false;
};

/// The marks of a scale bar, its length round in the file's units, and of a north arrow, for a plot whose box
/// shows `view`. They stand inside the box, in the corners with the fewest sites. Empty for a plot that is no
/// map of the field.
std::vector<DrawMark> FurnitureMarks(const Plot& plot, const PlotView& view, const MapFurniture& furniture);

/// The picture with the box showing `view`: dots and texts keep their size, all content is clipped to the
/// box.
Drawing ZoomedPicture(const Plot& plot, const PlotView& view, const MapFurniture& furniture = {});

/// A whole page of 594 by 489 pixels: title, box, axis labels, statistics and, for a map, the legend. This is
/// what is saved, copied and printed.
Drawing PlotPage(const Plot& plot, const PlotView& view = {}, const MapFurniture& furniture = {});

/// The site map with its title above the square. The square keeps its 433 pixels.
Drawing SiteMapPage(const SiteMapForm& form);

/// A plot in words, for those who do not see it: title, axis limits and the statistics shown.
std::string DescribePlot(const Plot& plot, const AxisLabels& labels);

}  // namespace veln
