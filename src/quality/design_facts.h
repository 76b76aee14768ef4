#pragma once

#include "design/design_run.h"
#include "quality/plan.h"
#include "workspace/survey_state.h"

namespace veln {

/// What the figures of a plan need of a survey whose design waits to be saved, or whose sites are being
/// picked by hand: free are the sites that were free when that work began. The columns are looked at where
/// they are: the record must stand as long as the facts are used.
SurveyFacts FactsOf(const SurveyState& state);

/// The plan that a finished design stands for; the record as `FactsOf` takes it.
Plan PlanOf(const SurveyState& state, const Design& design);

/// A plan of sites picked by hand, by their place in the survey.
Plan PlanOfSites(const std::vector<std::size_t>& sites);

}  // namespace veln
