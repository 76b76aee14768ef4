#pragma once

#include "toolkit/advice.h"
#include "workspace/survey_state.h"

#include <vector>

namespace veln {

/// What an imported survey gives reason to look at: coordinates that look like degrees (`degrees`), site IDs
/// that occur more than once (`site-ids-repeated`), and positions that repeat the one before, if they are
/// more than one in twenty
/// (`positions-repeated`).
std::vector<Advice> AdviseImport(const SurveyState& state);

}  // namespace veln
