#pragma once

#include "design/target_sites.h"
#include "workspace/survey_state.h"

namespace veln {

/// How far from 0 the decorrelated signals of a support site may lie, in standard deviations: 125 over the
/// survey's size, held between 0.25 and 1.
double CentralLimit(int surveySize);

/// Places a support site at `point` (0-based): of the free sites whose signals lie near the centre, the one
/// whose nearest site among the first `n` points is farthest away, of equal ones the first. The point stays
/// empty if there is none.
void FindSupportSite(const SurveyState& state, TargetSites& sites, std::size_t point, std::size_t n);

}  // namespace veln
