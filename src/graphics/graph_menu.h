#pragma once

#include "graphics/plot_axes.h"
#include "graphics/survey_graph.h"

#include <span>
#include <string>

namespace veln {

// What the plots of `frmSvyGraph` share.

/// Throws Refusal if the entry is closed.
void RequireEntry(const SurveyGraph& graph, GraphEntry entry);

/// Disables `mnuOSS`, as every selection but that of a map does.
void CloseOverlay(SurveyGraph& graph);

/// Clears the plot, its labels and title, and hides the panels.
void ClearGraph(SurveyGraph& graph);

/// Shows the axes and the labels of a map.
void ShowMapAxes(Plot& plot, const MapAxes& axes);

/// Pearson's correlation of two series rounded to four places, as text; empty where it is not defined.
std::string CorrelationText(std::span<const double> x, std::span<const double> y);

/// Mean and deviation of a series rounded to three places, as text. The deviation of a single value is empty.
struct MomentTexts {
  std::string Mean;
  std::string Std;
};

MomentTexts MomentsAsText(std::span<const double> series);

}  // namespace veln
