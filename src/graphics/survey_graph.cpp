#include "graphics/survey_graph.h"

#include "graphics/graph_menu.h"
#include "graphics/plot_frame.h"
#include "survey/field_extent.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>

namespace veln {

namespace {

void Enable(SurveyGraph& graph, std::initializer_list<GraphEntry> entries)
{
  for (const GraphEntry entry : entries) {
    graph.Enabled.set(static_cast<std::size_t>(entry));
  }
}

/// The text of a value that passes through a format and is a number again; empty if it is not finite.
std::string RoundedText(double value, const char* format)
{
  return std::isfinite(value) ? GeneralForm(RoundByFormat(value, format)) : "";
}

bool IsBetween(GraphEntry entry, GraphEntry first, GraphEntry last)
{
  return entry >= first && entry <= last;
}

}  // namespace

SurveyGraph LoadSurveyGraph(SurveyState& state)
{
  using enum GraphEntry;
  SurveyGraph graph;
  Enable(graph, {mnuGrid, mnuScatter, mnuSs1x, mnuSs1y, mnuLs1, mnuHist, mnuCSG, mnuVs1});
  PlotRefresh(graph.Shown);
  graph.Shown.Title = MenuPrompt;
  ReComputeXY(graph, state);
  graph.S1Range = MinMax(SeriesOf(state, state.Signal1));
  if (state.SignalCount == 2) {
    Enable(graph, {mnuSs2x, mnuSs2y, mnuSs1s2});
    graph.S2Range = MinMax(SeriesOf(state, state.Signal2));
    graph.SRange = {std::min(graph.S1Range.Minimum, graph.S2Range.Minimum),
                    std::max(graph.S1Range.Maximum, graph.S2Range.Maximum)};
  }
  if (state.DecorrDone) {
    Enable(graph, {mnuSz1z2});
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

DesignFlags ExistingDesigns(const SurveyState& state)
{
  DesignFlags designs{};
  for (int number = 1; number <= std::min(state.DesignCount, MaxDesigns); ++number) {
    designs.at(static_cast<std::size_t>(number) - 1) = true;
  }
  designs.back() = state.ManualDesignDone;
  return designs;
}

bool StartTranslation(SurveyGraph& graph, Dialogs& dialogs)
{
  dialogs.Beep();
  if (!dialogs.Ask("WARNING!  Any translation(s) you perform will \n"
                   "PERMANENTLY change the X and Y coordinates!\n\n"
                   "Do you still wish to proceed with this option?")) {
    return false;
  }
  ClearGraph(graph);
  return true;
}

bool NorthArrowOffered(const SurveyState& state)
{
  return state.Orientation.AsSurveyed();
}

void RequireEntry(const SurveyGraph& graph, GraphEntry entry)
{
  if (!graph.IsEnabled(entry)) {
    throw Refusal("This graph is not available for the survey as it stands.");
  }
}

void CloseOverlay(SurveyGraph& graph)
{
  graph.Enabled.reset(static_cast<std::size_t>(GraphEntry::mnuOSS));
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

std::string CorrelationText(std::span<const double> x, std::span<const double> y)
{
  const auto r = x.size() > 1 ? Correlation(x, y) : std::nullopt;
  return r ? RoundedText(*r, "0.0000") : "";
}

MomentTexts MomentsAsText(std::span<const double> series)
{
  constexpr const char* Format = "0.000";
  if (series.empty()) {
    return {};
  }
  if (series.size() == 1) {
    return {RoundedText(series.front(), Format), ""};
  }
  const Moments moments = MeanStd(series);
  return {RoundedText(moments.Mean, Format), RoundedText(moments.Std, Format)};
}

}  // namespace veln
