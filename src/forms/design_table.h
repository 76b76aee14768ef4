#pragma once

#include "design/design_run.h"
#include "toolkit/text_table.h"
#include "workspace/survey_state.h"

#include <optional>

namespace veln {

/// The chosen sites of a finished design, one a row: point, site ID, position, target and decorrelated
/// signals, support sites last; a support site has no target. Only the headings without a design.
TextTable ListDesignSites(const SurveyState& state, const std::optional<Design>& design);

/// The sites selected by hand, in survey order, with their position and signals.
TextTable ListManualSites(const SurveyState& state);

}  // namespace veln
