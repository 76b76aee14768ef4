#pragma once

#include "toolkit/clock.h"
#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// The text of `info.txt`: the record of field, survey and validation, with the texts of the panels.
std::string ComposeInfoFile(const SurveyState& state, const Clock& clock);

}  // namespace veln
