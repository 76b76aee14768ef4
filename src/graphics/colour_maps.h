#pragma once

#include "graphics/survey_graph.h"
#include "workspace/survey_state.h"

namespace veln {

// The colour-scale maps, the designs laid over them, and the labelled site map.

/// `InitCSG`: puts the chosen palette in force for maps and enables the entries of the series that exist.
void InitCSG(SurveyGraph& graph, const SurveyState& state);

/// `mnuVs1` to `mnuVta`: every site in the colour of its class. Throws Refusal if the entry is closed.
void ShowColourMap(SurveyGraph& graph, const SurveyState& state, GraphEntry entry);

/// Colour-blind-safe map colours on or off: a map that stands in the box is drawn anew, with the designs laid
/// over it.
void SetColourBlindSafe(SurveyGraph& graph, const SurveyState& state, bool on);

/// The designs that exist, for the chooser of `mnuOSS`: designs saved, and the manual one.
DesignFlags ExistingDesigns(const SurveyState& state);

/// `CSOver`: marks the sites of the designs on the map shown. Does nothing when no map of `mnuCSG` stands in
/// the box.
void CSOver(SurveyGraph& graph, const SurveyState& state, const DesignFlags& designs);

/// `MakeSSMap`: the labelled site map of the designs, in place of whatever is shown.
void MakeSSMap(SurveyGraph& graph, const SurveyState& state, const DesignFlags& designs);

}  // namespace veln
