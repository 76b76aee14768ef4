#pragma once

#include "graphics/dither.h"
#include "graphics/plot.h"
#include "graphics/plot_options.h"
#include "survey/row_table.h"
#include "survey/statistics.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace veln {

/// The entries of the menus of `frmSvyGraph` that are enabled by rules; all others are always open.
enum class GraphEntry {
  mnuGrid,
  mnuScatter,
  mnuSs1x,
  mnuSs1y,
  mnuSs2x,
  mnuSs2y,
  mnuSs1s2,
  mnuSz1z2,
  mnuLine,
  mnuLs1,
  mnuLs2,
  mnuLs1s2,
  mnuHist,
  mnuHs1,
  mnuHs2,
  mnuHz1,
  mnuHz2,
  mnuHta,
  mnuCSG,
  mnuVs1,
  mnuVs2,
  mnuVz1,
  mnuVz2,
  mnuVta,
  mnuOSS
};

inline constexpr int GraphEntryCount = 25;

constexpr std::size_t BitOf(GraphEntry entry)
{
  return static_cast<std::size_t>(entry);
}

/// What stands in the plot box.
enum class GraphContent {
  Empty,         ///< a cleared box: at the opening, in line mode before a row, after a translation
  Points,        ///< a scatter plot, the rsd plot or the survey grid
  Lines,         ///< rows of the line plots
  Bars,          ///< a histogram
  ColourMap,     ///< a map of `mnuCSG`: designs can be laid over it
  SampleSiteMap  ///< the labelled site map
};

inline constexpr std::size_t HistogramBins = 20;
inline constexpr std::size_t HistogramSeries = 5;  ///< s1, s2, z1, z2, transition score

/// A coordinate of the sites as an axis of a plot.
enum class FieldAxis { X, Y };

/// Which designs to show: entry N - 1 asks for the sites with status N, 1 to 5 saved designs, 6 the manual
/// one.
using DesignFlags = std::array<bool, 6>;

/// The controls of `Frame1` "Line Plots". `Command3` to `Command5` are always enabled.
struct LinePanelState {
  std::string Text1 = "1";  ///< the row number, as typed
  bool Command1Enabled = true;
  bool Command2Enabled = false;
  bool Command6Enabled = false;
  bool Command7Enabled = false;
};

/// The state of the graphics window `frmSvyGraph`. The window mirrors it; the rules are the functions below
/// and those of the plots' own headers, one for each action of the user. What was taken from the survey at
/// the opening stays until the window closes, whatever becomes of the survey; pictures read the survey as it
/// stands when they are drawn.
struct SurveyGraph {
  Limits XRange, YRange, S1Range, S2Range, SRange, Z1Range, Z2Range;
  std::array<std::array<std::int16_t, HistogramBins>, HistogramSeries> HistCount{};
  std::vector<SurveyRow> Rows;            ///< `RowCount`, `RowStart`, `RowEnd`
  FieldAxis TransectAxis = FieldAxis::X;  ///< x for East / West rows, y for North / South rows
  int LineMode = 1;                       ///< 1 = s1, 2 = s2, 3 = both
  MapMeaning MapTag = MapMeaning::Signal;
  PlotOptions Options;
  std::bitset<GraphEntryCount> Enabled;
  LinePanelState LinePanel;
  GraphContent Content = GraphContent::Empty;
  GraphEntry MapEntry = GraphEntry::mnuVs1;  ///< the map that stands in the box, or stood there last
  DesignFlags Overlay{};                     ///< designs that were laid over it
  Plot Shown;                                ///< what is on the surface now: box, labels, title, panels

  [[nodiscard]] bool IsEnabled(GraphEntry entry) const { return Enabled.test(BitOf(entry)); }
  void Enable(std::initializer_list<GraphEntry> entries)
  {
    for (const GraphEntry entry : entries) {
      Enabled.set(BitOf(entry));
    }
  }
  void Close(GraphEntry entry) { Enabled.reset(BitOf(entry)); }
  /// `CSOver` has a map to draw on; `MakeSSMap` is always possible.
  [[nodiscard]] bool OverlayAllowed() const { return Content == GraphContent::ColourMap; }
  [[nodiscard]] int RowCount() const { return static_cast<int>(Rows.size()); }
};

/// `Form_Load`: ranges, options, histogram counts and menus for the survey as it stands, with the prompt as
/// title. Sets `OverlayReady` of the survey once a design exists.
SurveyGraph LoadSurveyGraph(SurveyState& state);

/// `ReComputeXY`: the ranges of the coordinates as they stand.
void ReComputeXY(SurveyGraph& graph, const SurveyState& state);

/// `SetHLOps`: highlights masked and outlier sites, and sample sites, in the plots to come.
void SetHLOps(SurveyGraph& graph, bool highlightMasked, bool highlightSamples);

/// Palette, decimal places and symbol size.
struct PlotChoices {
  int PaletteChoice = 1;
  int DecimalPlaces = 2;
  int SymbolSize = 4;
};

/// `SetCCDDP`: takes effect with the next plot, the palette with the next `InitCSG`.
void SetCCDDP(SurveyGraph& graph, const PlotChoices& choices);

/// `RetrieveCCDDP`.
PlotChoices RetrieveCCDDP(const SurveyGraph& graph);

/// A click on an entry that draws or opens a mode. Not for `mnuOSS` and the headings of submenus. Throws
/// Refusal if the entry is closed; the plot shown then stays.
void SelectGraph(SurveyGraph& graph, const SurveyState& state, GraphEntry entry, DitherGenerator& dither);

/// The question of `mnuPCT`. On Yes the plot, its labels and panels are cleared and the result is true:
/// `frmPCT` opens.
bool StartTranslation(SurveyGraph& graph, Dialogs& dialogs);

}  // namespace veln
