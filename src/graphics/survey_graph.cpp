#include "graphics/survey_graph.h"

#include "graphics/colour_maps.h"
#include "graphics/graph_menu.h"
#include "graphics/histograms.h"
#include "graphics/line_plots.h"
#include "graphics/plot_frame.h"
#include "graphics/point_plots.h"
#include "toolkit/refusal.h"

#include <algorithm>

namespace veln {

namespace {

bool IsBetween(GraphEntry entry, GraphEntry first, GraphEntry last)
{
  return entry >= first && entry <= last;
}

}  // namespace

SurveyGraph LoadSurveyGraph(SurveyState& state)
{
  using enum GraphEntry;
  SurveyGraph graph;
  graph.Enable({mnuGrid, mnuScatter, mnuSs1x, mnuSs1y, mnuLs1, mnuHist, mnuCSG, mnuVs1});
  PlotRefresh(graph.Shown);
  graph.Shown.Title = MenuPrompt;
  ReComputeXY(graph, state);
  graph.S1Range = MinMax(SeriesOf(state, state.Signal1));
  if (state.SignalCount == 2) {
    graph.Enable({mnuSs2x, mnuSs2y, mnuSs1s2});
    graph.S2Range = MinMax(SeriesOf(state, state.Signal2));
    graph.SRange = {std::min(graph.S1Range.Minimum, graph.S2Range.Minimum),
                    std::max(graph.S1Range.Maximum, graph.S2Range.Maximum)};
  }
  if (state.DecorrDone) {
    graph.Enable({mnuSz1z2});
  }
  if (HasDesign(state)) {
    state.OverlayReady = true;
  }
  InitHist(graph, state);
  InitCSG(graph, state);
  return graph;
}

void ReComputeXY(SurveyGraph& graph, const SurveyState& state)
{
  graph.XRange = MinMax(SeriesOf(state, state.CoordX));
  graph.YRange = MinMax(SeriesOf(state, state.CoordY));
}

void SetHLOps(SurveyGraph& graph, bool highlightMasked, bool highlightSamples)
{
  graph.Options.HighlightMasked = highlightMasked;
  graph.Options.HighlightSamples = highlightSamples;
}

void SetCCDDP(SurveyGraph& graph, const PlotChoices& choices)
{
  graph.Options.PaletteChoice = std::clamp(choices.PaletteChoice, 1, PaletteCount);
  graph.Options.DecimalPlaces = std::clamp(choices.DecimalPlaces, FewestPlaces, MostPlaces);
  graph.Options.SymbolSize = std::clamp(choices.SymbolSize, SmallestSymbol, LargestSymbol);
}

PlotChoices RetrieveCCDDP(const SurveyGraph& graph)
{
  return {graph.Options.PaletteChoice, graph.Options.DecimalPlaces, graph.Options.SymbolSize};
}

void SelectGraph(SurveyGraph& graph, const SurveyState& state, GraphEntry entry, DitherGenerator& dither)
{
  using enum GraphEntry;
  if (entry == mnuGrid) {
    ShowSurveyGrid(graph, state);
  } else if (entry == mnuSz1z2) {
    ShowRsdPlot(graph, state, dither);
  } else if (IsBetween(entry, mnuSs1x, mnuSs1s2)) {
    ShowScatterPlot(graph, state, entry);
  } else if (IsBetween(entry, mnuLs1, mnuLs1s2)) {
    StartLinePlots(graph, entry);
  } else if (IsBetween(entry, mnuHs1, mnuHta)) {
    ShowHistogram(graph, state, entry);
  } else if (IsBetween(entry, mnuVs1, mnuVta)) {
    ShowColourMap(graph, state, entry);
  }
}

bool StartTranslation(SurveyGraph& graph, Dialogs& dialogs)
{
  dialogs.Beep();
  if (!dialogs.Ask(Question::TranslateForGood,
                   "WARNING!  Any translation(s) you perform will \n"
                   "PERMANENTLY change the X and Y coordinates!\n\n"
                   "Do you still wish to proceed with this option?")) {
    return false;
  }
  ClearGraph(graph);
  return true;
}

void RequireEntry(const SurveyGraph& graph, GraphEntry entry)
{
  if (!graph.IsEnabled(entry)) {
    throw Refusal("This graph is not available for the survey as it stands.");
  }
}

void ClearGraph(SurveyGraph& graph)
{
  PlotRefresh(graph.Shown);
  LabelRefresh(graph.Shown);
  graph.Shown.Title.clear();
  HidePanels(graph.Shown);
  graph.Content = GraphContent::Empty;
}

void ShowMapAxes(Plot& plot, const MapAxes& axes)
{
  plot.AxisX = axes.X;
  plot.AxisY = axes.Y;
  plot.Labels = axes.Labels;
}

CoordinateSource CoordinateOf(const SurveyGraph& graph, const SurveyState& state, FieldAxis axis)
{
  const int places = graph.Options.DecimalPlaces;
  if (axis == FieldAxis::X) {
    return {SeriesOf(state, state.CoordX), {graph.XRange, AxisFormat::Coordinate, places}, "x", "X"};
  }
  return {SeriesOf(state, state.CoordY), {graph.YRange, AxisFormat::Coordinate, places}, "y", "Y"};
}

SignalSource SignalOf(const SurveyGraph& graph, const SurveyState& state, int number)
{
  const bool first = number == 1;
  const auto& [label, statistics] = first ? state.Signals.Rows.front() : state.Signals.Rows.back();
  SignalSource source{number,
                      SeriesOf(state, first ? state.Signal1 : state.Signal2),
                      {first ? graph.S1Range : graph.S2Range, AxisFormat::Signal},
                      first ? "s1" : "s2",
                      first ? state.SignalLabel.front() : state.SignalLabel.back(),
                      {label, {}, {}}};
  if (statistics.Count > 0) {
    source.Panel = {label, statistics.Mean, statistics.Std};
  }
  return source;
}

std::string CorrelationTitle(const SignalSource& signal, const CoordinateSource& coordinate)
{
  return "Corr(" + signal.Symbol + ", " + coordinate.Symbol + ")";
}

}  // namespace veln
