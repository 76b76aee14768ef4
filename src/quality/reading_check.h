#pragma once

#include "quality/plan.h"

#include <optional>

namespace veln {

/// How far a site's reading stands out of its row: the difference of s1 (and of s2, the greater of the two)
/// from the median of up to 6 sites before and 6 behind it in its row, in standard deviations of the signal.
/// Empty on a grid, or with fewer than 4 neighbours.
std::optional<double> ReadingDifference(const SurveyFacts& survey, std::size_t site);

}  // namespace veln
