#pragma once

#include "graphics/survey_graph.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// The state of `frmIGC` "Graphics Initialization". Nothing is applied before `Command2`. A control whose
/// value is true (set) shows its text in colour 9, otherwise in colour 0.
struct IgcForm {
  bool DirectionEnabled = false;  ///< `Label1`, `Option1`, `Option2` and `Check1`: transects alone
  bool Option1 = false;           ///< "North / South"
  bool Option2 = false;           ///< "East / West"
  bool Check1 = false;            ///< "Initialize Line (Transect) Plots"
  bool Check2 = true;             ///< histograms; never shown
  bool Check3 = true;             ///< maps; never shown
  bool Check4 = true;             ///< "Highlight all masked and outlier sites"
  bool Check5 = true;             ///< "Highlight all selected sample sites"
  int ColorChoice = 1;            ///< 1 to 4: `optColor1`, `optColor2`, `optColor3`, `optGray`
  int PlacesChoice = 2;           ///< 2 to 5: `optDP2` to `optDP5`
  int SizeChoice = 4;             ///< `HScroll1`, 1 to 10
  bool Closed = false;

  /// `Text1`, the symbol size shown.
  [[nodiscard]] std::string Text1() const;
  /// `Label3`, `HScroll1`, `Text1` and `fraCSC` are shown.
  [[nodiscard]] bool MapChoicesVisible() const { return Check3; }
};

/// `Form_Load`. Directions and highlights are not remembered; the rest is as in force.
IgcForm LoadIgcForm(const SurveyGraph& graph, const SurveyState& state);

/// A click on `Option1`, rows along y from north to south, or `Option2`, along x. Without effect on a grid
/// survey.
void ChooseDirection(IgcForm& form, FieldAxis rows);
/// A click on `Check1`. Without effect on a grid survey.
void TickLinePlots(IgcForm& form, bool on);
/// A move of `HScroll1`; held between 1 and 10.
void MoveSymbolSize(IgcForm& form, int size);
/// A click on a palette, 1 to 4.
void ChoosePalette(IgcForm& form, int palette);
/// A click on a number of decimal places, 2 to 5.
void ChoosePlaces(IgcForm& form, int places);

/// `Command2` "Initialize ": applies all choices to the graphics window and closes. Without a direction for
/// line plots it tells so, and nothing is applied.
void InitializeGraphics(IgcForm& form, SurveyGraph& graph, const SurveyState& state, Dialogs& dialogs);

}  // namespace veln
