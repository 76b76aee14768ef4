#pragma once

#include "toolkit/clock.h"
#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// The text of `info.txt`: the record of field, survey and validation, mostly from the panels as their texts
/// stand.
std::string ComposeInfoFile(const SurveyState& state, const Clock& clock);

}  // namespace veln
