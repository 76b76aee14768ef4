#pragma once

#include "graphics/plot_axes.h"
#include "graphics/plot_statistics.h"
#include "graphics/survey_graph.h"

#include <span>
#include <string>

namespace veln {

// What the plots of `frmSvyGraph` share.

/// Throws Refusal if the entry is closed.
void RequireEntry(const SurveyGraph& graph, GraphEntry entry);

/// Clears the plot, its labels and title, and hides the panels.
void ClearGraph(SurveyGraph& graph);

/// Shows the axes and the labels of a map.
void ShowMapAxes(Plot& plot, const MapAxes& axes);

/// A coordinate of all sites, on the axis that the window took at its opening.
struct CoordinateSource {
  std::span<const double> Values;
  PlotAxis Axis;
  std::string Symbol;  ///< "x"
  std::string Name;    ///< "X", in titles
};

CoordinateSource CoordinateOf(const SurveyGraph& graph, const SurveyState& state, FieldAxis axis);

/// A signal of all sites, on the axis that the window took at its opening.
struct SignalSource {
  int Number = 1;
  std::span<const double> Values;
  PlotAxis Axis;
  std::string Symbol;  ///< "s1"
  std::string Label;   ///< as titles name it
  MomentBlock Panel;   ///< as the main window shows it, which is what the rules ask for here
};

SignalSource SignalOf(const SurveyGraph& graph, const SurveyState& state, int number);

/// "Corr(s1, x)".
std::string CorrelationTitle(const SignalSource& signal, const CoordinateSource& coordinate);

}  // namespace veln
