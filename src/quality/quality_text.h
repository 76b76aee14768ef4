#pragma once

#include "quality/plan_quality.h"

#include <string>
#include <vector>

namespace veln {

/// The figures of a plan in five lines: model, targets, spread, readings, coverage.
std::vector<std::string> ShortQualityLines(const SurveyFacts& survey, const Plan& plan,
                                           const PlanFigures& figures);

/// What random plans and the search of its own candidates tell of a plan; nothing of what is not known.
std::vector<std::string> StandingLines(const PlanStanding& standing);

}  // namespace veln
