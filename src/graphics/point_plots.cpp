#include "graphics/point_plots.h"

#include "graphics/graph_menu.h"
#include "graphics/plot_axes.h"
#include "graphics/plot_frame.h"
#include "graphics/plot_statistics.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <vector>

namespace veln {

namespace {

constexpr int SiteColour = 1;
constexpr double SiteWidth = 2;
constexpr const char* SignalCorrelation = "Corr(s1, s2)";

/// A series across and one up, with the limits of their axes; the index is the site's.
struct PointSeries {
  std::span<const double> X;
  Limits RangeX;
  std::span<const double> Y;
  Limits RangeY;
};

/// How an outlier shows besides its highlight.
enum class OutlierMark { Dot, Ray };

/// `ScatterPlot`, and with rays from the origin to the outliers `RSDPlot`.
void PlotPoints(SurveyGraph& graph, const SurveyState& state, const PointSeries& series,
                OutlierMark outliers = OutlierMark::Dot)
{
  constexpr int RayColour = 4;
  Plot& plot = graph.Shown;
  PlotRefresh(plot);
  const AxisScale scaleX(series.RangeX);
  const AxisScale scaleY(series.RangeY);
  const bool rays = outliers == OutlierMark::Ray && graph.Options.HighlightMasked;
  const std::size_t count = std::min(series.X.size(), series.Y.size());
  plot.Picture.Marks.reserve(Plot::FrameMarks + count + count / 4);
  plot.Sites.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const DrawPoint at{scaleX.X(series.X[i]), scaleY.Y(series.Y[i])};
    PutSite(plot, i, at, {QBColor(SiteColour), SiteWidth});
    if (rays && state.SiteStatus[i] == site_status::Outlier) {
      plot.Picture.Line({0, 0}, at, {QBColor(RayColour), 1});
    }
    PutHighlight(plot, state.SiteStatus[i], at, graph.Options);
  }
  graph.Content = GraphContent::Points;
}

void OpenPointPlot(SurveyGraph& graph)
{
  graph.Close(GraphEntry::mnuOSS);
  graph.Shown.LinePanel = false;
  graph.Shown.LegendPanel = false;
}

void ShowSignalByCoordinate(SurveyGraph& graph, const SurveyState& state, int number, FieldAxis axis)
{
  const SignalSource signal = SignalOf(graph, state, number);
  const CoordinateSource along = CoordinateOf(graph, state, axis);
  SetStats(graph.Shown, signal.Panel, {},
           {CorrelationTitle(signal, along), UnlessWhole(CorrelationOf(along.Values, signal.Values))});
  LabelAxes(graph.Shown, along.Axis, signal.Axis);
  graph.Shown.Title = signal.Label + " versus " + along.Name;
  PlotPoints(graph, state, {along.Values, along.Axis.Range, signal.Values, signal.Axis.Range});
}

void ShowSignalBySignal(SurveyGraph& graph, const SurveyState& state)
{
  const SignalSource s1 = SignalOf(graph, state, 1);
  const SignalSource s2 = SignalOf(graph, state, 2);
  SetStats(graph.Shown, s1.Panel, s2.Panel, {SignalCorrelation, state.Signals.Correlation});
  LabelAxes(graph.Shown, s2.Axis, s1.Axis);
  graph.Shown.Title = s1.Label + " versus " + s2.Label;
  PlotPoints(graph, state, {s2.Values, s2.Axis.Range, s1.Values, s1.Axis.Range});
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
  SetStats(graph.Shown, {"z1", 0, 1}, MomentBlock{"z2", 0, 1}, {SignalCorrelation, 0});
  graph.Z1Range = SymmetricLimits({MinMax(z1), MinMax(z2)});
  graph.Z2Range = graph.Z1Range;
  LabelAxes(graph.Shown, {graph.Z2Range, AxisFormat::Signal}, {graph.Z1Range, AxisFormat::Signal});
  graph.Shown.Title = "RSD Scatter Plot:  z1 versus z2";
  PlotPoints(graph, state, {z2, graph.Z2Range, z1, graph.Z1Range}, OutlierMark::Ray);
}

void ShowDitheredRsd(SurveyGraph& graph, const SurveyState& state, DitherGenerator& dither)
{
  constexpr double BandWidth = 0.4;
  constexpr double BandEdge = 0.25;
  const auto z1 = SeriesOf(state, state.Decorr1);
  SetStats(graph.Shown, {"z1", 0, 1});
  graph.Z1Range = SymmetricLimits({MinMax(z1)});
  LabelAxes(graph.Shown, {graph.Z1Range, AxisFormat::Signal}, {{-1, 1}, AxisFormat::Text});
  graph.Shown.Labels.txtMinY = " ";
  graph.Shown.Labels.txtMaxY = " ";
  graph.Shown.Labels.txtMedY = "dither";
  std::vector<double> band;
  band.reserve(z1.size());
  for (std::size_t i = 0; i < z1.size(); ++i) {
    band.push_back(dither.Next() * BandWidth - BandWidth / 2);
  }
  graph.Shown.Title = "RSD Scatter Plot:  Dithered z1 data";
  PlotPoints(graph, state, {z1, graph.Z1Range, band, {-1, 1}}, OutlierMark::Ray);
  for (const double y : {BandEdge, -BandEdge}) {
    graph.Shown.Picture.Line({-1, y}, {1, y}, {QBColor(0), 2});
  }
}

}  // namespace

void ShowSurveyGrid(SurveyGraph& graph, const SurveyState& state)
{
  RequireEntry(graph, GraphEntry::mnuGrid);
  graph.Close(GraphEntry::mnuOSS);
  HidePanels(graph.Shown);
  const MapAxes axes =
      EqualAspect({graph.XRange, graph.YRange}, AxisFormat::Coordinate, graph.Options.DecimalPlaces);
  ShowMapAxes(graph.Shown, axes);
  graph.Shown.Title = "Grid Map of Survey Site Locations";
  PlotPoints(graph, state,
             {SeriesOf(state, state.CoordX), axes.X.Range, SeriesOf(state, state.CoordY), axes.Y.Range});
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
  ShowSignalByCoordinate(graph, state, signal, alongX ? FieldAxis::X : FieldAxis::Y);
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
