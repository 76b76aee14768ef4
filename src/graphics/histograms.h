#pragma once

#include "graphics/survey_graph.h"
#include "workspace/survey_state.h"

namespace veln {

/// `InitHist`: counts all series that exist into 20 equal bins each and enables their entries. A value on an
/// edge goes to the upper bin; transition scores are counted from 0; a constant series goes into bin 20.
void InitHist(SurveyGraph& graph, const SurveyState& state);

/// `mnuHs1` to `mnuHta`: the counts of the last `InitHist` as bars, with the limits of the series as it
/// stands. Throws Refusal if the entry is closed.
void ShowHistogram(SurveyGraph& graph, const SurveyState& state, GraphEntry entry);

}  // namespace veln
