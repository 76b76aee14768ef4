#pragma once

#include "design/target_sites.h"
#include "workspace/survey_state.h"

namespace veln {

/// How far from 0 the decorrelated signals of a support site may lie, in standard deviations: 125 over the
/// survey's size, held between 0.25 and 1.
double CentralLimit(int surveySize);

/// The support site of a design of `n` points: of the free sites whose signals lie near the centre, the one
/// whose nearest site of the design is farthest away, of equal ones the first. No site if none lies there.
CandidateSite FindSupportSite(const SurveyState& state, const TargetSites& sites, std::size_t n);

}  // namespace veln
