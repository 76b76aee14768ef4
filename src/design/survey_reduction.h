#pragma once

#include "workspace/survey_state.h"

#include <array>

namespace veln {

/// A survey reduction: one free site in `Factor` stays.
struct ReductionStep {
  int Percent;      ///< of the free sites that go
  int Factor;       ///< `rfactor`
  int FewestSites;  ///< of a survey that is offered the step
};

inline constexpr std::array<ReductionStep, 4> ReductionSteps = {
    {{50, 2, 5000}, {67, 3, 7500}, {75, 4, 10000}, {80, 5, 12500}}};

/// `ReduceGridSize`: keeps of the free sites those whose place in the survey (from 1) is a multiple of the
/// step's factor and sets the rest aside until they are recovered.
void ReduceGridSize(SurveyState& state, const ReductionStep& step);

/// `RecoverGridSites`: brings all sites back that reductions set aside.
void RecoverGridSites(SurveyState& state);

inline constexpr int MostStrata = 9;
inline constexpr int FewestSitesForParsing = 400;

/// Strata that a survey of this size can be parsed into, 2 to 9: one more than its size over 400, rounded.
int CountStrata(int surveySize);

}  // namespace veln
