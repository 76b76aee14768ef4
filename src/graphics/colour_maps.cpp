#include "graphics/colour_maps.h"

#include "graphics/graph_menu.h"
#include "graphics/plot_axes.h"
#include "graphics/plot_frame.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace veln {

namespace {

/// What a map shows: a series, the centre and the scale of its classes, and its name in the title.
struct MapSource {
  std::span<const double> Values;
  double Centre = 0;
  double Scale = 0;
  std::string Name;
  MapMeaning Meaning = MapMeaning::Signal;
};

MapSource SignalSource(std::span<const double> values, const std::string& name)
{
  MapSource source{values, 0, 0, name, MapMeaning::Signal};
  if (values.size() > 1 && !IsConstant(values)) {  // a constant series has no scale
    const Moments moments = MeanStd(values);
    source.Centre = moments.Mean;
    source.Scale = moments.Std;
  }
  return source;
}

MapSource SourceOf(const SurveyState& state, GraphEntry entry)
{
  constexpr double TransitionCentre = 0.75;
  constexpr double TransitionScale = 0.25;
  switch (entry) {
    case GraphEntry::mnuVs2:
      return SignalSource(SeriesOf(state, state.Signal2), state.SignalLabel[1] + " Signal Data");
    case GraphEntry::mnuVz1:
      return SignalSource(SeriesOf(state, state.Decorr1), "z1 Decorrelated Signal Data");
    case GraphEntry::mnuVz2:
      return SignalSource(SeriesOf(state, state.Decorr2), "z2 Decorrelated Signal Data");
    case GraphEntry::mnuVta:
      return {SeriesOf(state, state.TransitionScore), TransitionCentre, TransitionScale,
              "z1 Transition Signal Variability", MapMeaning::Transition};
    default:
      return SignalSource(SeriesOf(state, state.Signal1), state.SignalLabel[0] + " Signal Data");
  }
}

/// The class of a value, from 0; a value equal to a limit falls in the lower class. Without a scale all
/// values are in the second.
std::size_t ClassOf(double value, const MapSource& source)
{
  const double t = source.Scale == 0 ? 0 : (value - source.Centre) / source.Scale;
  if (t <= -1) {
    return 0;
  }
  if (t <= 0) {
    return 1;
  }
  return t <= 1 ? 2 : 3;
}

/// Where sites stand on a map.
class MapPlaces {
 public:
  MapPlaces(const SurveyState& state, const FieldExtent& limits)
      : x_(SeriesOf(state, state.CoordX)),
        y_(SeriesOf(state, state.CoordY)),
        scaleX_(limits.X),
        scaleY_(limits.Y)
  {
  }

  [[nodiscard]] std::size_t Count() const { return x_.size(); }
  [[nodiscard]] DrawPoint At(std::size_t i) const { return {scaleX_.X(x_[i]), scaleY_.Y(y_[i])}; }

 private:
  std::span<const double> x_, y_;
  AxisScale scaleX_, scaleY_;
};

bool IsAskedFor(std::int16_t status, const DesignFlags& designs)
{
  return status >= 1 && status <= site_status::Selected && designs.at(static_cast<std::size_t>(status) - 1);
}

/// `CSPlot`.
void CSPlot(SurveyGraph& graph, const SurveyState& state, const MapSource& source)
{
  Plot& plot = graph.Shown;
  PlotRefresh(plot);
  const MapAxes axes =
      EqualAspect({graph.XRange, graph.YRange}, AxisFormat::Coordinate, graph.Options.DecimalPlaces);
  ShowMapAxes(plot, axes);
  const MapPlaces places(state, {axes.X.Range, axes.Y.Range});
  const MapColours& colours = ColoursOf(graph.Options, graph.Options.MapPalette);
  const auto width = static_cast<double>(graph.Options.SymbolSize);
  const std::size_t count = std::min(places.Count(), source.Values.size());
  plot.Picture.Marks.reserve(Plot::FrameMarks + count);
  plot.Sites.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    PutSite(plot, i, places.At(i), {colours.at(ClassOf(source.Values[i], source)), width});
  }
}

void DrawMap(SurveyGraph& graph, const SurveyState& state)
{
  const MapSource source = SourceOf(state, graph.MapEntry);
  const bool grey = graph.Options.MapPalette == GreyPalette;
  graph.Shown.Title = (grey ? "GrayScale Map of " : "ColorScale Map of ") + source.Name;
  CSPlot(graph, state, source);
  graph.Shown.FieldMap = true;
  graph.Shown.Legend = ComposeLegend(graph.Options, graph.Options.MapPalette, source.Meaning);
  graph.MapTag = source.Meaning;
  graph.Content = GraphContent::ColourMap;
}

void DrawOverlay(SurveyGraph& graph, const SurveyState& state, const DesignFlags& designs)
{
  constexpr int OnColours = 0;
  constexpr int OnGrey = 12;
  constexpr int NarrowestOverlay = 6;
  const int width = std::clamp(graph.Options.SymbolSize + 2, NarrowestOverlay, LargestSymbol);
  const int colour = graph.Options.MapPalette == GreyPalette ? OnGrey : OnColours;
  const Pen pen{QBColor(colour), static_cast<double>(width)};
  const MapPlaces places(state, EqualAspectShown({graph.XRange, graph.YRange}, graph.Shown.Labels));
  for (std::size_t i = 0; i < places.Count(); ++i) {
    if (IsAskedFor(state.SiteStatus[i], designs)) {
      graph.Shown.Picture.PSet(places.At(i), pen);
    }
  }
}

Limits Widened(const Limits& range)
{
  constexpr double Share = 0.05;
  const double margin = Share * range.Width();
  return {range.Minimum - margin, range.Maximum + margin};
}

/// A chosen site of the labelled map: a heavy dot with its number to the upper left.
void PutLabelledSite(Plot& plot, DrawPoint at, std::int16_t siteId)
{
  constexpr int DotColour = 1;
  constexpr double DotWidth = 4;
  constexpr double LabelLeft = 0.05;
  constexpr double LabelUp = 0.08;
  constexpr double FontSize = 8;
  plot.Picture.PSet(at, {QBColor(DotColour), DotWidth});
  plot.Picture.Marks.emplace_back(
      TextMark{{at.X - LabelLeft, at.Y - LabelUp}, PrintedNumber(siteId), QBColor(0), FontSize, true});
}

}  // namespace

void InitCSG(SurveyGraph& graph, const SurveyState& state)
{
  graph.Options.MapPalette = graph.Options.PaletteChoice;
  const bool two = state.SignalCount == 2;
  if (two) {
    graph.Enable({GraphEntry::mnuVs2});
  }
  if (state.DecorrDone) {
    graph.Enable({GraphEntry::mnuVz1});
  }
  if (state.DecorrDone && two) {
    graph.Enable({GraphEntry::mnuVz2});
  }
  if (state.TransitionDone) {
    graph.Enable({GraphEntry::mnuVta});
  }
}

DesignFlags ExistingDesigns(const SurveyState& state)
{
  DesignFlags designs{};
  std::fill_n(designs.begin(), std::min(state.DesignCount, MaxDesigns), true);
  designs.back() = state.ManualDesignDone;
  return designs;
}

void ShowColourMap(SurveyGraph& graph, const SurveyState& state, GraphEntry entry)
{
  RequireEntry(graph, entry);
  if (state.OverlayReady) {
    graph.Enable({GraphEntry::mnuOSS});
  }
  HidePanels(graph.Shown);
  graph.MapEntry = entry;
  graph.Overlay = {};
  DrawMap(graph, state);
  graph.Shown.LegendPanel = true;
}

void SetColourBlindSafe(SurveyGraph& graph, const SurveyState& state, bool on)
{
  graph.Options.ColourBlindSafe = on;
  if (graph.Content == GraphContent::ColourMap) {
    DrawMap(graph, state);
    DrawOverlay(graph, state, graph.Overlay);
  }
}

void CSOver(SurveyGraph& graph, const SurveyState& state, const DesignFlags& designs)
{
  if (!graph.OverlayAllowed()) {
    return;
  }
  HidePanels(graph.Shown);
  for (std::size_t i = 0; i < designs.size(); ++i) {
    graph.Overlay.at(i) = graph.Overlay.at(i) || designs.at(i);
  }
  DrawOverlay(graph, state, designs);
}

void MakeSSMap(SurveyGraph& graph, const SurveyState& state, const DesignFlags& designs)
{
  constexpr int SpeckColour = 0;
  constexpr int MaskedColour = 9;
  Plot& plot = graph.Shown;
  HidePanels(plot);
  const MapAxes axes =
      EqualAspect({Widened(graph.XRange), Widened(graph.YRange)}, AxisFormat::FixedCoordinate, FewestPlaces);
  ShowMapAxes(plot, axes);
  plot.Title = "VELN Sample Site Locations";
  PlotRefresh(plot);
  const MapPlaces places(state, {axes.X.Range, axes.Y.Range});
  for (std::size_t i = 0; i < places.Count(); ++i) {
    const bool masked = state.SiteStatus[i] == site_status::Masked;
    PutSite(plot, i, places.At(i), {QBColor(masked ? MaskedColour : SpeckColour), 1});
    if (IsAskedFor(state.SiteStatus[i], designs)) {
      PutLabelledSite(plot, places.At(i), state.SiteId[i]);
    }
  }
  plot.FieldMap = true;
  graph.Content = GraphContent::SampleSiteMap;
}

}  // namespace veln
