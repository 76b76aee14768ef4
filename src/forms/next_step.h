#pragma once

#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// What there is to do next, in words and counts ("Next: decorrelate 1500 sites"). `designsOffered` is false
/// where no way to a sample design is open whatever the survey.
std::string NextStep(const SurveyState& state, bool designsOffered = true);

}  // namespace veln
