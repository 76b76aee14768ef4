#include "graphics/histograms.h"

#include "graphics/graph_menu.h"
#include "graphics/plot_frame.h"
#include "graphics/plot_statistics.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace veln {

namespace {

/// One of the five series: its entry, its values, and what the histogram says of it.
struct HistogramSource {
  GraphEntry Entry;
  std::span<const double> Values;
  bool Exists;
  bool FromZero;  ///< transition scores count from 0
  std::string Title;
  std::string Name;
};

std::vector<HistogramSource> HistogramSources(const SurveyState& state)
{
  const bool two = state.SignalCount == 2;
  return {{GraphEntry::mnuHs1, SeriesOf(state, state.Signal1), true, false,
           state.SignalLabel[0] + " Histogram", state.SignalLabel[0]},
          {GraphEntry::mnuHs2, SeriesOf(state, state.Signal2), two, false,
           state.SignalLabel[1] + " Histogram", state.SignalLabel[1]},
          {GraphEntry::mnuHz1, SeriesOf(state, state.Decorr1), state.DecorrDone, false,
           "Primary (z1) Decorrelated Signal Histogram", "z1"},
          {GraphEntry::mnuHz2, SeriesOf(state, state.Decorr2), state.DecorrDone && two, false,
           "Secondary (z2) Decorrelated Signal Histogram", "z2"},
          {GraphEntry::mnuHta, SeriesOf(state, state.TransitionScore), state.TransitionDone, true,
           "Transition STD Variability Histogram", ""}};
}

Limits RangeOf(const HistogramSource& source)
{
  Limits range = MinMax(source.Values);
  range.Minimum = source.FromZero ? 0 : range.Minimum;
  return range;
}

/// The bin of a value, from 0. A value on the edge between two bins goes to the upper one, also when the
/// division leaves it a rounding short of the edge.
std::size_t BinOf(double value, const Limits& range)
{
  constexpr auto Bins = static_cast<double>(HistogramBins);
  if (range.Width() == 0) {
    return HistogramBins - 1;
  }
  constexpr double Rounding = 1E-9;
  const double bin = std::floor(Bins * (1 - (range.Maximum - value) / range.Width()) + Rounding) + 1;
  return static_cast<std::size_t>(std::clamp(bin, 1.0, Bins)) - 1;
}

/// `DrawHistBars`: `tallest` is the count that fills the plot.
void DrawHistBars(Plot& plot, const std::array<std::int16_t, HistogramBins>& counts, double tallest)
{
  constexpr int BarColour = 2;
  constexpr double Baseline = 1;
  constexpr double LeftGap = 0.01;
  constexpr double RightGap = 0.09;
  const Pen pen{QBColor(BarColour), 2};
  for (std::size_t j = 0; j < HistogramBins; ++j) {
    const double x = static_cast<double>(j) / 10 - 1;
    const double top = tallest > 0 ? 1 - 2 * counts.at(j) / tallest : Baseline;
    plot.Picture.Marks.emplace_back(BoxMark{{x + LeftGap, Baseline}, {x + RightGap, top}, pen, true});
  }
}

}  // namespace

void InitHist(SurveyGraph& graph, const SurveyState& state)
{
  graph.HistCount = {};
  const std::vector<HistogramSource> sources = HistogramSources(state);
  for (std::size_t s = 0; s < sources.size(); ++s) {
    const HistogramSource& source = sources.at(s);
    if (!source.Exists) {
      continue;
    }
    const Limits range = RangeOf(source);
    for (const double value : source.Values) {
      ++graph.HistCount.at(s).at(BinOf(value, range));
    }
    graph.Enable({source.Entry});
  }
}

void ShowHistogram(SurveyGraph& graph, const SurveyState& state, GraphEntry entry)
{
  RequireEntry(graph, entry);
  const std::vector<HistogramSource> sources = HistogramSources(state);
  const auto source = std::ranges::find(sources, entry, &HistogramSource::Entry);
  Plot& plot = graph.Shown;
  graph.Close(GraphEntry::mnuOSS);
  PlotRefresh(plot);
  graph.Content = GraphContent::Bars;
  plot.Title = source->Title;
  HidePanels(plot);
  const auto& counts = graph.HistCount.at(static_cast<std::size_t>(source - sources.begin()));
  const double tallest = *std::ranges::max_element(counts);
  const Limits range = RangeOf(*source);
  LabelAxes(plot, {range, AxisFormat::Signal}, {{0, tallest}, AxisFormat::Count});
  if (!source->FromZero) {
    SetStats(plot, MomentsOf(source->Name, source->Values), range);
  }
  DrawHistBars(plot, counts, tallest);
}

}  // namespace veln
