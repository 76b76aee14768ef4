#pragma once

#include "graphics/plot.h"
#include "graphics/plot_options.h"
#include "survey/statistics.h"
#include "workspace/survey_state.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace veln {

inline constexpr const char* MenuPrompt = "Please use the Menu Bar to Select a Graph";

/// `PlotRefresh`: the empty box with its ticks; labels, title and panels stay.
void PlotRefresh(Plot& plot);

/// `LabelRefresh`: empties the six axis labels.
void LabelRefresh(Plot& plot);

/// Shows the lowest value, midpoint and highest value of both axes.
void LabelAxes(Plot& plot, const PlotAxis& x, const PlotAxis& y);

/// Hides `Frame1`, `Frame2` and `Frame3`.
void HidePanels(Plot& plot);

/// The values of a column that belong to sites of the survey as it stands.
std::span<const double> SeriesOf(const SurveyState& state, const std::vector<double>& column);

/// Draws a site, and keeps its place for those who point at it. A place that is not a number is left out.
void PutSite(Plot& plot, std::size_t site, DrawPoint at, const Pen& pen);

/// Draws the highlight of a site over its dot: members of designs in colour 11, masked sites in 14, outliers
/// in 4, 4 pixels wide, each as far as the options ask for it.
void PutHighlight(Plot& plot, std::int16_t status, DrawPoint at, const PlotOptions& options);

}  // namespace veln
