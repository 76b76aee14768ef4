#pragma once

#include "graphics/dither.h"
#include "graphics/survey_graph.h"
#include "workspace/survey_state.h"

namespace veln {

// The plots that show every site as one dot. Each throws Refusal if its entry is closed.

/// `mnuGrid`: all sites of the field, with highlights.
void ShowSurveyGrid(SurveyGraph& graph, const SurveyState& state);

/// `mnuSs1x` to `mnuSs1s2`: a signal against a coordinate, or s1 against s2.
void ShowScatterPlot(SurveyGraph& graph, const SurveyState& state, GraphEntry entry);

/// `mnuSz1z2`: z1 against z2, or z1 on a random band with one signal; rays lead to the outliers.
void ShowRsdPlot(SurveyGraph& graph, const SurveyState& state, DitherGenerator& dither);

}  // namespace veln
