#pragma once

#include "toolkit/text_table.h"
#include "workspace/survey_state.h"

namespace veln {

/// Every site that the last decorrelation marked as an outlier, in survey order: identification, coordinates,
/// signals and its distance from the centre of the signal cloud. Five columns with one signal, six with two.
TextTable ListOutliers(const SurveyState& state);

}  // namespace veln
