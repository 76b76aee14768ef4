#pragma once

#include "graphics/map_furniture.h"
#include "graphics/plot.h"
#include "graphics/plot_axes.h"
#include "graphics/site_map.h"
#include "toolkit/drawing.h"

#include <string>

namespace veln {

/// The picture with the box showing `view`: dots and texts keep their size, and a text its distance from the
/// dot before it; all content is clipped to the box.
Drawing ZoomedPicture(const Plot& plot, const PlotView& view, const MapFurniture& furniture = {});

/// A whole page of 594 by 489 pixels: title, box, axis labels, statistics and, for a map, the legend. This is
/// what is saved, copied and printed.
Drawing PlotPage(const Plot& plot, const PlotView& view = {}, const MapFurniture& furniture = {});

/// The site map with its title above the square. The square keeps its 433 pixels.
Drawing SiteMapPage(const SiteMapForm& form);

/// A plot in words, for those who do not see it: title, axis limits as labelled, and the statistics shown.
std::string DescribePlot(const Plot& plot, const AxisLabels& labels);

}  // namespace veln
