#pragma once

#include "design/design_run.h"
#include "toolkit/text_table.h"
#include "workspace/survey_state.h"

namespace veln {

/// The chosen sites of a design, in the order of its points: point, site ID, x, y, target, z and whether it
/// is a support site. With two signals targets and z values are pairs.
TextTable ListDesignSites(const SurveyState& state, const Design& design);

/// The sites selected by hand, in survey order: site ID, x, y, signals and z values.
TextTable ListManualSites(const SurveyState& state);

}  // namespace veln
