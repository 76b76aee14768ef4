#pragma once

#include "cli/run_options.h"
#include "cli/run_record.h"
#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// The JSON document of a run, with a line end behind it. Numbers are unrounded; a step that did not run is
/// null.
std::string ComposeRunJson(const RunOptions& options, const RunRecord& record, const SurveyState& state);

}  // namespace veln
