#pragma once

#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// What there is to do next, in words and counts ("Next: decorrelate 1500 sites").
std::string NextStep(const SurveyState& state);

}  // namespace veln
