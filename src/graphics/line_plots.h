#pragma once

#include "graphics/survey_graph.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

namespace veln {

// The line plots of transect rows: `mnuLs1`, `mnuLs2`, `mnuLs1s2`, and the controls of `Frame1`.

/// `InitRows`: the rows of the survey as it stands.
void InitRows(SurveyGraph& graph, const SurveyState& state);

/// Opens line mode 1 (s1), 2 (s2) or 3 (both). Throws Refusal if the entry is closed.
void StartLinePlots(SurveyGraph& graph, GraphEntry entry);

/// The keystroke filter of `Text1`: digits and backspace. False, after a beep, for any other character.
bool KeyInRow(char32_t character, Dialogs& dialogs);

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
