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

/// The state of the graphics window `frmSvyGraph`. The window mirrors it; the rules are the functions below,
/// one for each action of the user. What was taken from the survey at the opening stays until the window
/// closes, whatever becomes of the survey; pictures read the survey as it stands when they are drawn.
struct SurveyGraph {
  Limits XRange, YRange, S1Range, S2Range, SRange, Z1Range, Z2Range;
  std::array<std::array<std::int16_t, HistogramBins>, HistogramSeries> HistCount{};
  std::vector<SurveyRow> Rows;  ///< `RowCount`, `RowStart`, `RowEnd`
  char TransectAxis = 'x';      ///< 'x' for East / West rows, 'y' for North / South rows
  int LineMode = 1;             ///< 1 = s1, 2 = s2, 3 = both
  MapMeaning MapTag = MapMeaning::Signal;
  PlotOptions Options;
  std::bitset<GraphEntryCount> Enabled;
  LinePanelState LinePanel;
  GraphContent Content = GraphContent::Empty;
  GraphEntry MapEntry = GraphEntry::mnuVs1;  ///< the map that stands in the box, or stood there last
  DesignFlags Overlay{};                     ///< designs that were laid over it
  Plot Shown;                                ///< what is on the surface now: box, labels, title, panels

  [[nodiscard]] bool IsEnabled(GraphEntry entry) const
  {
    return Enabled.test(static_cast<std::size_t>(entry));
  }
  /// `CSOver` has a map to draw on; `MakeSSMap` is always possible.
  [[nodiscard]] bool OverlayAllowed() const { return Content == GraphContent::ColourMap; }
  [[nodiscard]] int RowCount() const { return static_cast<int>(Rows.size()); }
};

/// `Form_Load`: ranges, options, histogram counts and menus for the survey as it stands, with the prompt as
/// title. Sets `OverlayReady` of the survey once a design exists.
SurveyGraph LoadSurveyGraph(SurveyState& state);

/// `InitRows`: the rows of the survey as it stands.
void InitRows(SurveyGraph& graph, const SurveyState& state);

/// `InitHist`: counts all series that exist into 20 equal bins each and enables their entries. A value on an
/// edge goes to the upper bin; transition scores are counted from 0; a constant series goes into bin 20.
void InitHist(SurveyGraph& graph, const SurveyState& state);

/// `InitCSG`: puts the chosen palette in force for maps and enables the entries of the series that exist.
void InitCSG(SurveyGraph& graph, const SurveyState& state);

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

// A click on a menu entry. Each throws Refusal if the entry is closed; the plot shown then stays.

/// Any entry that draws or opens a mode: calls one of the functions below. Not for `mnuOSS` and the headings
/// of submenus.
void SelectGraph(SurveyGraph& graph, const SurveyState& state, GraphEntry entry, DitherGenerator& dither);

/// `mnuGrid`: all sites of the field, with highlights.
void ShowSurveyGrid(SurveyGraph& graph, const SurveyState& state);

/// `mnuSs1x` to `mnuSs1s2`: a signal against a coordinate, or s1 against s2.
void ShowScatterPlot(SurveyGraph& graph, const SurveyState& state, GraphEntry entry);

/// `mnuSz1z2`: z1 against z2, or z1 on a random band with one signal; rays lead to the outliers.
void ShowRsdPlot(SurveyGraph& graph, const SurveyState& state, DitherGenerator& dither);

/// `mnuHs1` to `mnuHta`: the counts of the last `InitHist` as bars, with the limits of the series as it
/// stands.
void ShowHistogram(SurveyGraph& graph, const SurveyState& state, GraphEntry entry);

/// `mnuVs1` to `mnuVta`: every site in the colour of its class.
void ShowColourMap(SurveyGraph& graph, const SurveyState& state, GraphEntry entry);

/// `CSOver`: marks the sites of the designs on the map shown. Does nothing when no map of `mnuCSG` stands in
/// the box.
void CSOver(SurveyGraph& graph, const SurveyState& state, const DesignFlags& designs);

/// `MakeSSMap`: the labelled site map of the designs, in place of whatever is shown.
void MakeSSMap(SurveyGraph& graph, const SurveyState& state, const DesignFlags& designs);

/// The designs that exist, for the chooser of `mnuOSS`: designs saved, and the manual one.
DesignFlags ExistingDesigns(const SurveyState& state);

/// The question of `mnuPCT`. On Yes the plot, its labels and panels are cleared and the result is true:
/// `frmPCT` opens.
bool StartTranslation(SurveyGraph& graph, Dialogs& dialogs);

/// Colour-blind-safe map colours on or off: a map that stands in the box is drawn anew, with the designs laid
/// over it.
void SetColourBlindSafe(SurveyGraph& graph, const SurveyState& state, bool on);

/// Whether north is up, so that an arrow may say so: not once a translation that was not undone has turned or
/// mirrored the field.
bool NorthArrowOffered(const SurveyState& state);

// The line plots: `mnuLs1`, `mnuLs2`, `mnuLs1s2`, and the controls of `Frame1`.

/// Opens line mode 1 (s1), 2 (s2) or 3 (both).
void StartLinePlots(SurveyGraph& graph, GraphEntry entry);

/// The keystroke filter of `Text1`: digits and backspace. False, after a beep, for any other character.
bool KeyInRow(char32_t character, Dialogs& dialogs);

/// `Trap_T1X`: text that is not a number becomes "0".
void TrapRowText(SurveyGraph& graph);

/// `Command1` ">>".
void NextRow(SurveyGraph& graph);
/// `Command2` "<<".
void PreviousRow(SurveyGraph& graph);
/// `Command3` "Plot": draws the row over those shown. Tells when there is no such row.
void PlotRow(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs);
/// `Command4` "Refresh": clears the box; labels and title stay.
void ClearRows(SurveyGraph& graph);
/// `Command5` "Done": leaves line mode.
void LeaveLinePlots(SurveyGraph& graph);
/// `Command6` "s1 Stats" of the row in `Text1`.
void ShowRowStats1(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs);
/// `Command7` "s2 Stats"; with both signals shown, below those of s1.
void ShowRowStats2(SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs);

}  // namespace veln
