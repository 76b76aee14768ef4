#pragma once

#include "design/design_run.h"
#include "quality/plan.h"
#include "workspace/survey_state.h"

namespace veln {

/// What the figures of a plan need of a survey whose design waits to be saved: its candidates count as free,
/// as they were when its run began. The columns are looked at where they are: the record must stand as long
/// as the facts are used.
SurveyFacts FactsOf(const SurveyState& state);

/// The plan that a finished design stands for; the record as `FactsOf` takes it.
Plan PlanOf(const SurveyState& state, const Design& design);

}  // namespace veln
