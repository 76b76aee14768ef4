#pragma once

#include "workspace/survey_state.h"

#include <string>
#include <vector>

namespace veln {

/// A table of text cells with its headings.
struct TextTable {
  std::vector<std::string> Headings;
  std::vector<std::vector<std::string>> Rows;
};

/// Every site that the last decorrelation marked as an outlier, in survey order: identification, coordinates,
/// signals and its distance from the centre of the signal cloud. Five columns with one signal, six with two.
TextTable ListOutliers(const SurveyState& state);

}  // namespace veln
