#pragma once

#include "graphics/plot.h"
#include "graphics/plot_axes.h"
#include "toolkit/drawing.h"
#include "workspace/survey_state.h"

#include <vector>

namespace veln {

/// What may stand on a map besides the sites.
struct MapFurniture {
  bool ScaleBar = false;
  bool NorthArrow = false;
};

/// Whether north is up, so that an arrow may say so: not once a translation that was not undone has turned or
/// mirrored the field.
bool NorthArrowOffered(const SurveyState& state);

/// The length of a scale bar: 1, 2 or 5 and a power of ten, at most `longest`. Both in the file's units.
double RoundLength(double longest);

/// The marks of a scale bar, its length round in the file's units, and of a north arrow, for a plot whose box
/// shows `view`. They stand inside the box, in the corners with the fewest sites. Empty for a plot that is no
/// map of the field.
std::vector<DrawMark> FurnitureMarks(const Plot& plot, const PlotView& view, const MapFurniture& furniture);

}  // namespace veln
