#include "graphics/graph_menu.h"
#include "graphics/plot_axes.h"
#include "graphics/plot_frame.h"
#include "graphics/plot_statistics.h"
#include "graphics/survey_graph.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <span>
#include <string>

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

/// The row of `Text1`, cut where the survey has become shorter. Tells when there is none.
std::optional<SurveyRow> RowToPlot(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs)
{
  TrapRowText(graph);
  const double number = RowInText(graph);
  if (number >= 1 && number <= graph.RowCount()) {
    SurveyRow row = graph.Rows.at(static_cast<std::size_t>(number) - 1);
    const auto sites = static_cast<std::size_t>(state.SurveySize);
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
      plot.Picture.PSet(from, dot);
    }
    PutSite(plot, i + 1, to, dot);
    plot.Picture.Line(from, to, {QBColor(series.Colour), 1});
    PutHighlight(plot, state.SiteStatus[i], from, graph.Options);
    PutHighlight(plot, state.SiteStatus[i + 1], to, graph.Options);
  }
}

/// What a line mode says and shows.
struct LineModeSource {
  std::string Names;
  Limits Range;
};

LineModeSource SourceOf(const SurveyGraph& graph, const SurveyState& state)
{
  switch (graph.LineMode) {
    case 1:
      return {state.SignalLabel[0], graph.S1Range};
    case 2:
      return {state.SignalLabel[1], graph.S2Range};
    default:
      return {state.SignalLabel[0] + " & " + state.SignalLabel[1], graph.SRange};
  }
}

std::span<const double> PartOf(std::span<const double> series, const SurveyRow& row)
{
  return series.subspan(row.Start, row.End - row.Start + 1);
}

/// The statistics of a signal in the row of `Text1`, as the two buttons compute them.
struct RowStatistics {
  StatisticsBlock Signal;
  std::string CorrelationTitle;
  std::string Correlation;
};

std::optional<RowStatistics> StatisticsOfRow(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs,
                                             int signal)
{
  const auto row = RowToPlot(graph, state, dialogs);
  if (!row) {
    return std::nullopt;
  }
  const bool alongX = graph.TransectAxis == 'x';
  const auto values = PartOf(SeriesOf(state, signal == 1 ? state.Signal1 : state.Signal2), *row);
  const auto position = PartOf(SeriesOf(state, alongX ? state.CoordX : state.CoordY), *row);
  const MomentTexts moments = MomentsAsText(values);
  return RowStatistics{
      {state.Signals.Rows.at(static_cast<std::size_t>(signal) - 1).Label, moments.Mean, moments.Std},
      "Corr(s" + GeneralForm(signal) + (alongX ? ", x)" : ", y)"),
      CorrelationText(values, position)};
}

void ShowWholePanel(SurveyGraph& graph, const RowStatistics& statistics)
{
  SetStats(graph.Shown, statistics.Signal, {"none", "-1", "-1"},
           {statistics.CorrelationTitle, statistics.Correlation, ""});
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
  CloseOverlay(graph);
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

void TrapRowText(SurveyGraph& graph)
{
  if (!NumberIn(graph.LinePanel.Text1)) {
    graph.LinePanel.Text1 = "0";
  }
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
  constexpr int Colour1 = 1;
  constexpr int Colour2 = 2;
  const auto row = RowToPlot(graph, state, dialogs);
  if (!row) {
    return;
  }
  const bool alongX = graph.TransectAxis == 'x';
  const auto position = SeriesOf(state, alongX ? state.CoordX : state.CoordY);
  const Limits& range = alongX ? graph.XRange : graph.YRange;
  const LineModeSource source = SourceOf(graph, state);
  LabelAxes(graph.Shown, AxisOf(range, AxisFormat::Coordinate, graph.Options.DecimalPlaces),
            AxisOf(source.Range, AxisFormat::Signal));
  graph.Shown.Title = source.Names + " versus " + (alongX ? "X" : "Y") + " for Row #" + graph.LinePanel.Text1;
  const AxisScale scaleX(range);
  const AxisScale scaleY(source.Range);
  if (graph.LineMode != 2) {
    LinePlot(graph, state, {position, scaleX, SeriesOf(state, state.Signal1), scaleY, Colour1}, *row);
  }
  if (graph.LineMode != 1) {
    LinePlot(graph, state, {position, scaleX, SeriesOf(state, state.Signal2), scaleY, Colour2}, *row);
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
    SetSubStats(graph.Shown, statistics->Signal, "s1 s2 Corr", statistics->Correlation);
    graph.LinePanel.Command7Enabled = false;
  } else {
    ShowWholePanel(graph, *statistics);
  }
}

}  // namespace veln
