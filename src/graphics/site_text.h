#pragma once

#include "workspace/survey_state.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace veln {

/// The status of a site in words ("free", "sample design 2", "masked", ...).
std::string StatusText(std::int16_t status);

/// What pointing at a site shows, in lines: site number, coordinates, signals, z once there, status, and for
/// a transect the row, counted as the line plots count. `site` counts from 0; empty for a site that is no
/// longer there.
std::string SiteText(const SurveyState& state, std::size_t site);

}  // namespace veln
