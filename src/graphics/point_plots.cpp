// The plots that show every site as one dot: survey grid, scatter plots and the rsd plot.
#include "graphics/graph_menu.h"
#include "graphics/plot_axes.h"
#include "graphics/plot_frame.h"
#include "graphics/plot_statistics.h"
#include "graphics/survey_graph.h"
#include "toolkit/number_text.h"
#include "workspace/captions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace veln {

namespace {

constexpr int SiteColour = 1;
constexpr double SiteWidth = 2;

/// A series across and one up, with the limits of their axes; the index is the site's.
struct PointSeries {
  std::span<const double> X;
  Limits RangeX;
  std::span<const double> Y;
  Limits RangeY;
};

/// `ScatterPlot`, and with rays from the origin to the outliers `RSDPlot`.
void PlotPoints(SurveyGraph& graph, const SurveyState& state, const PointSeries& series, bool rays)
{
  constexpr int RayColour = 4;
  Plot& plot = graph.Shown;
  PlotRefresh(plot);
  const AxisScale scaleX(series.RangeX);
  const AxisScale scaleY(series.RangeY);
  const std::size_t count = std::min(series.X.size(), series.Y.size());
  plot.Picture.Marks.reserve(Plot::FrameMarks + count + count / 4);
  plot.Sites.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const DrawPoint at{scaleX.X(series.X[i]), scaleY.Y(series.Y[i])};
    PutSite(plot, i, at, {QBColor(SiteColour), SiteWidth});
    if (rays && state.SiteStatus[i] == site_status::Outlier && graph.Options.HighlightMasked) {
      plot.Picture.Line({0, 0}, at, {QBColor(RayColour), 1});
    }
    PutHighlight(plot, state.SiteStatus[i], at, graph.Options);
  }
  graph.Content = GraphContent::Points;
}

void OpenPointPlot(SurveyGraph& graph)
{
  CloseOverlay(graph);
  graph.Shown.LinePanel = false;
  graph.Shown.LegendPanel = false;
}

/// A signal as the menus name it: its values, limits and row in the main window's panel.
struct SignalSource {
  std::span<const double> Values;
  Limits Range;
  SignalTexts Row;
  const std::string& Label;
};

SignalSource SignalOf(const SurveyGraph& graph, const SurveyState& state, int number)
{
  const std::size_t index = static_cast<std::size_t>(number) - 1;
  return {SeriesOf(state, number == 1 ? state.Signal1 : state.Signal2),
          number == 1 ? graph.S1Range : graph.S2Range, TextsOf(state.Signals.Rows.at(index)),
          state.SignalLabel.at(index)};
}

void ShowSignalByCoordinate(SurveyGraph& graph, const SurveyState& state, int signal, bool alongX)
{
  const SignalSource source = SignalOf(graph, state, signal);
  const auto position = SeriesOf(state, alongX ? state.CoordX : state.CoordY);
  const Limits& range = alongX ? graph.XRange : graph.YRange;
  const std::string axis = alongX ? "x" : "y";
  SetStats(
      graph.Shown, {source.Row.LblNm, source.Row.LblMu, source.Row.LblStd}, {"none", "", ""},
      {"Corr(s" + GeneralForm(signal) + ", " + axis + ")", CorrelationText(position, source.Values), ""});
  LabelAxes(graph.Shown, AxisOf(range, AxisFormat::Coordinate, graph.Options.DecimalPlaces),
            AxisOf(source.Range, AxisFormat::Signal));
  graph.Shown.Title = source.Label + " versus " + (alongX ? "X" : "Y");
  PlotPoints(graph, state, {position, range, source.Values, source.Range}, false);
}

void ShowSignalBySignal(SurveyGraph& graph, const SurveyState& state)
{
  const SignalSource s1 = SignalOf(graph, state, 1);
  const SignalSource s2 = SignalOf(graph, state, 2);
  SetStats(graph.Shown, {s1.Row.LblNm, s1.Row.LblMu, s1.Row.LblStd},
           {s2.Row.LblNm, s2.Row.LblMu, s2.Row.LblStd},
           {"Corr(s1, s2)", PanelCorrelation(state.Signals), ""});
  LabelAxes(graph.Shown, AxisOf(s2.Range, AxisFormat::Signal), AxisOf(s1.Range, AxisFormat::Signal));
  graph.Shown.Title = s1.Label + " versus " + s2.Label;
  PlotPoints(graph, state, {s2.Values, s2.Range, s1.Values, s1.Range}, false);
}

/// -M to M, with M the largest magnitude, at least 3.
Limits SymmetricLimits(std::initializer_list<Limits> ranges)
{
  double most = 3;
  for (const Limits& range : ranges) {
    most = std::max({most, std::abs(range.Minimum), range.Maximum});
  }
  return {-most, most};
}

void ShowTwoSignalRsd(SurveyGraph& graph, const SurveyState& state)
{
  const auto z1 = SeriesOf(state, state.Decorr1);
  const auto z2 = SeriesOf(state, state.Decorr2);
  // Decorrelated signals have these moments by their making.
  SetStats(graph.Shown, {"z1", "0", "1"}, {"z2", "0", "1"}, {"Corr(s1, s2)", "0.00", ""});
  graph.Z1Range = SymmetricLimits({MinMax(z1), MinMax(z2)});
  graph.Z2Range = graph.Z1Range;
  LabelAxes(graph.Shown, AxisOf(graph.Z2Range, AxisFormat::Signal),
            AxisOf(graph.Z1Range, AxisFormat::Signal));
  graph.Shown.Title = "RSD Scatter Plot:  z1 versus z2";
  PlotPoints(graph, state, {z2, graph.Z2Range, z1, graph.Z1Range}, true);
}

void ShowDitheredRsd(SurveyGraph& graph, const SurveyState& state, DitherGenerator& dither)
{
  constexpr double BandWidth = 0.4;
  constexpr double BandEdge = 0.25;
  const auto z1 = SeriesOf(state, state.Decorr1);
  SetStats(graph.Shown, {"z1", "0", "1"}, {"none", "0", "0"}, {" ", "0", "0"});
  graph.Z1Range = SymmetricLimits({MinMax(z1)});
  LabelAxes(graph.Shown, AxisOf(graph.Z1Range, AxisFormat::Signal), {-1, 1, AxisFormat::Text});
  graph.Shown.Labels.txtMinY = " ";
  graph.Shown.Labels.txtMaxY = " ";
  graph.Shown.Labels.txtMedY = "dither";
  std::vector<double> band;
  band.reserve(z1.size());
  for (std::size_t i = 0; i < z1.size(); ++i) {
    band.push_back(dither.Next() * BandWidth - BandWidth / 2);
  }
  graph.Shown.Title = "RSD Scatter Plot:  Dithered z1 data";
  PlotPoints(graph, state, {z1, graph.Z1Range, band, {-1, 1}}, true);
  for (const double y : {BandEdge, -BandEdge}) {
    graph.Shown.Picture.Line({-1, y}, {1, y}, {QBColor(0), 2});
  }
}

}  // namespace

void ShowSurveyGrid(SurveyGraph& graph, const SurveyState& state)
{
  RequireEntry(graph, GraphEntry::mnuGrid);
  CloseOverlay(graph);
  HidePanels(graph.Shown);
  const MapAxes axes =
      EqualAspect(graph.XRange, graph.YRange, AxisFormat::Coordinate, graph.Options.DecimalPlaces);
  ShowMapAxes(graph.Shown, axes);
  graph.Shown.Title = "Grid Map of Survey Site Locations";
  PlotPoints(graph, state,
             {SeriesOf(state, state.CoordX),
              {axes.X.Low, axes.X.High},
              SeriesOf(state, state.CoordY),
              {axes.Y.Low, axes.Y.High}},
             false);
  graph.Shown.FieldMap = true;
}

void ShowScatterPlot(SurveyGraph& graph, const SurveyState& state, GraphEntry entry)
{
  RequireEntry(graph, entry);
  OpenPointPlot(graph);
  if (entry == GraphEntry::mnuSs1s2) {
    ShowSignalBySignal(graph, state);
    return;
  }
  const int signal = entry == GraphEntry::mnuSs2x || entry == GraphEntry::mnuSs2y ? 2 : 1;
  const bool alongX = entry == GraphEntry::mnuSs1x || entry == GraphEntry::mnuSs2x;
  ShowSignalByCoordinate(graph, state, signal, alongX);
}

void ShowRsdPlot(SurveyGraph& graph, const SurveyState& state, DitherGenerator& dither)
{
  RequireEntry(graph, GraphEntry::mnuSz1z2);
  OpenPointPlot(graph);
  if (state.SignalCount == 2) {
    ShowTwoSignalRsd(graph, state);
  } else {
    ShowDitheredRsd(graph, state, dither);
  }
}

}  // namespace veln
