#pragma once

#include "cli/run_record.h"
#include "workspace/survey_state.h"

#include <nlohmann/json.hpp>

namespace veln {

/// The figures of a design's quality as docs/json.md tells them; the survey as it stood when the design was
/// made or saved. Null where none were computed.
nlohmann::ordered_json QualityJson(const std::optional<DesignQuality>& quality, const SurveyState& state);

}  // namespace veln
