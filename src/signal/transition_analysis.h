#pragma once

#include "survey/row_table.h"
#include "workspace/survey_state.h"

#include <string>
#include <vector>

namespace veln {

/// The score of a site that can't be scored: too short a row, uneven spacing, broken site numbering.
inline constexpr double UnscorableSite = 1.5;

/// Scores above this one stand for a zone more variable than the field as a whole.
inline constexpr double HighScore = 1.0;

/// The transition standard deviation of z1 about each site, from its three neighbours on either side in its
/// row, in units of the field's own deviation. One entry a site.
std::vector<double> TrnsAlys(const SurveyState& state, const std::vector<SurveyRow>& rows);

/// How many scores stand above 1.0.
int CountHighTVSites(const std::vector<double>& scores);

/// The text of `tstd.std`: a heading and one line a site.
std::string ComposeTransitionFile(const SurveyState& state);

}  // namespace veln
