#include "graphics/line_plots.h"

#include "graphics/graph_menu.h"
#include "graphics/plot_frame.h"
#include "graphics/plot_statistics.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace veln {

namespace {

constexpr int BothSignals = 3;

/// The number in a text box, also with blanks around it; empty if it is none.
std::optional<double> NumberIn(const std::string& text)
{
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) {
    return std::nullopt;
  }
  return ParseNumber(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

/// The row number in `Text1`.
double RowInText(const SurveyGraph& graph)
{
  return std::nearbyint(NumberIn(graph.LinePanel.Text1).value_or(0));
}

void CloseStats(SurveyGraph& graph)
{
  graph.Shown.StatisticsPanel = false;
  graph.LinePanel.Command6Enabled = false;
  graph.LinePanel.Command7Enabled = false;
}

/// `Trap_T1X`: text that is not a number becomes "0".
void TrapRowText(SurveyGraph& graph)
{
  if (!NumberIn(graph.LinePanel.Text1)) {
    graph.LinePanel.Text1 = "0";
  }
}

/// The row of `Text1`, cut where the survey has become shorter. Tells when there is none.
std::optional<SurveyRow> RowToPlot(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs)
{
  TrapRowText(graph);
  const double number = RowInText(graph);
  if (number >= 1 && number <= graph.RowCount()) {
    SurveyRow row = graph.Rows.at(static_cast<std::size_t>(number) - 1);
    const std::size_t sites = SeriesOf(state, state.CoordX).size();
    if (row.Start < sites) {
      row.End = std::min(row.End, sites - 1);
      return row;
    }
  }
  dialogs.Inform("Error! Requested Row # does not exist!");
  return std::nullopt;
}

/// A signal along the rows: positions and values of all sites with the limits of their axes, and its colour.
struct LineSeries {
  std::span<const double> Position;
  AxisScale ScaleX;
  std::span<const double> Signal;
  AxisScale ScaleY;
  int Colour;

  [[nodiscard]] DrawPoint At(std::size_t i) const { return {ScaleX.X(Position[i]), ScaleY.Y(Signal[i])}; }
};

/// `LinePlot`: dots joined by lines, over what is shown. A row of one site draws nothing.
void LinePlot(SurveyGraph& graph, const SurveyState& state, const LineSeries& series, const SurveyRow& row)
{
  const Pen dot{QBColor(0), 2};
  Plot& plot = graph.Shown;
  for (std::size_t i = row.Start; i < row.End; ++i) {
    const DrawPoint from = series.At(i);
    const DrawPoint to = series.At(i + 1);
    if (i == row.Start) {
      PutSite(plot, i, from, dot);
    } else {
      plot.Picture.PSet(from, dot);  // pointed at already, as the end of the line before
    }
    PutSite(plot, i + 1, to, dot);
    plot.Picture.Line(from, to, {QBColor(series.Colour), 1});
    PutHighlight(plot, state.SiteStatus[i], from, graph.Options);
    PutHighlight(plot, state.SiteStatus[i + 1], to, graph.Options);
  }
}

/// The signals that the line mode shows.
std::vector<SignalSource> SignalsShown(const SurveyGraph& graph, const SurveyState& state)
{
  if (graph.LineMode == BothSignals) {
    return {SignalOf(graph, state, 1), SignalOf(graph, state, 2)};
  }
  return {SignalOf(graph, state, graph.LineMode)};
}

std::span<const double> PartOf(std::span<const double> series, const SurveyRow& row)
{
  return series.subspan(row.Start, row.End - row.Start + 1);
}

/// The statistics of a signal in the row of `Text1`, as the two buttons compute them.
struct RowStatistics {
  MomentBlock Signal;
  CorrelationBlock AlongRow;
};

std::optional<RowStatistics> StatisticsOfRow(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs,
                                             int number)
{
  const auto row = RowToPlot(graph, state, dialogs);
  if (!row) {
    return std::nullopt;
  }
  const SignalSource signal = SignalOf(graph, state, number);
  const CoordinateSource along = CoordinateOf(graph, state, graph.TransectAxis);
  const auto values = PartOf(signal.Values, *row);
  return RowStatistics{MomentsOf(signal.Panel.Title, values),
                       {CorrelationTitle(signal, along), CorrelationOf(values, PartOf(along.Values, *row))}};
}

void ShowWholePanel(SurveyGraph& graph, const RowStatistics& statistics)
{
  const auto& [title, r] = statistics.AlongRow;
  SetStats(graph.Shown, statistics.Signal, {}, {title, UnlessWhole(r)});
}

}  // namespace

void InitRows(SurveyGraph& graph, const SurveyState& state)
{
  graph.Rows = InitRows(state.RowNumber);
}

void StartLinePlots(SurveyGraph& graph, GraphEntry entry)
{
  RequireEntry(graph, GraphEntry::mnuLine);
  RequireEntry(graph, entry);
  graph.Close(GraphEntry::mnuOSS);
  graph.Shown.LinePanel = true;
  graph.Shown.LegendPanel = false;
  graph.LineMode = entry == GraphEntry::mnuLs1 ? 1 : 2;
  if (entry == GraphEntry::mnuLs1s2) {
    graph.LineMode = BothSignals;
  }
  CloseStats(graph);
  graph.Shown.Title = "Please use Line Plot Buttons to select a row to Display";
  PlotRefresh(graph.Shown);
  graph.Content = GraphContent::Lines;
}

bool KeyInRow(char32_t character, Dialogs& dialogs)
{
  constexpr char32_t Backspace = 8;
  const bool passes = character == Backspace || (character >= U'0' && character <= U'9');
  if (!passes) {
    dialogs.Beep();
  }
  return passes;
}

void NextRow(SurveyGraph& graph)
{
  CloseStats(graph);
  TrapRowText(graph);
  double number = RowInText(graph);
  if (number < graph.RowCount()) {
    ++number;
    graph.LinePanel.Text1 = GeneralForm(number);
  }
  if (number > 1) {
    graph.LinePanel.Command2Enabled = true;
  }
  if (number == graph.RowCount()) {
    graph.LinePanel.Command1Enabled = false;
  }
}

void PreviousRow(SurveyGraph& graph)
{
  CloseStats(graph);
  TrapRowText(graph);
  double number = RowInText(graph);
  if (number >= 2) {
    --number;
    graph.LinePanel.Text1 = GeneralForm(number);
  }
  if (number == 1) {
    graph.LinePanel.Command2Enabled = false;
  }
  if (number < graph.RowCount()) {
    graph.LinePanel.Command1Enabled = true;
  }
}

void PlotRow(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs)
{
  const auto row = RowToPlot(graph, state, dialogs);
  if (!row) {
    return;
  }
  const std::vector<SignalSource> signals = SignalsShown(graph, state);
  const CoordinateSource along = CoordinateOf(graph, state, graph.TransectAxis);
  const bool both = signals.size() == 2;
  const PlotAxis axisY{both ? graph.SRange : signals.front().Axis.Range, AxisFormat::Signal};
  LabelAxes(graph.Shown, along.Axis, axisY);
  graph.Shown.Title = signals.front().Label + (both ? " & " + signals.back().Label : "") + " versus " +
                      along.Name + " for Row #" + graph.LinePanel.Text1;
  for (const SignalSource& signal : signals) {
    const int colour = signal.Number;  // blue for s1, green for s2
    LinePlot(graph, state,
             {along.Values, AxisScale(along.Axis.Range), signal.Values, AxisScale(axisY.Range), colour},
             *row);
  }
  graph.Content = GraphContent::Lines;
  (graph.LineMode == 2 ? graph.LinePanel.Command7Enabled : graph.LinePanel.Command6Enabled) = true;
}

void ClearRows(SurveyGraph& graph)
{
  CloseStats(graph);
  PlotRefresh(graph.Shown);
}

void LeaveLinePlots(SurveyGraph& graph)
{
  PlotRefresh(graph.Shown);
  graph.Content = GraphContent::Empty;
  graph.Shown.Title = MenuPrompt;
  graph.Shown.LinePanel = false;
  graph.Shown.StatisticsPanel = false;
  LabelRefresh(graph.Shown);
}

void ShowRowStats1(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs)
{
  if (const auto statistics = StatisticsOfRow(graph, state, dialogs, 1)) {
    ShowWholePanel(graph, *statistics);
    if (graph.LineMode == BothSignals) {
      graph.LinePanel.Command7Enabled = true;
    }
  }
}

void ShowRowStats2(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs)
{
  const auto statistics = StatisticsOfRow(graph, state, dialogs, 2);
  if (!statistics) {
    return;
  }
  if (graph.LineMode == BothSignals) {
    SetSubStats(graph.Shown, statistics->Signal, {"s1 s2 Corr", statistics->AlongRow.R});
    graph.LinePanel.Command7Enabled = false;
  } else {
    ShowWholePanel(graph, *statistics);
  }
}

}  // namespace veln
