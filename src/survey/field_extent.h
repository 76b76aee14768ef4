#pragma once

#include "survey/statistics.h"
#include "workspace/survey_state.h"

namespace veln {

/// The ranges of x and y over all sites, whatever their status, in the file's units.
struct FieldExtent {
  Limits X, Y;

  [[nodiscard]] double Width() const { return X.Maximum - X.Minimum; }
  [[nodiscard]] double Height() const { return Y.Maximum - Y.Minimum; }
};

FieldExtent MeasureField(const SurveyState& state);

/// Throws Refusal if distances in the field can't be computed: its coordinates are so large that squares
/// leave the doubles.
void RequireMeasurable(const FieldExtent& field);

/// The straight-line distance of two sites.
double SiteDistance(const SurveyState& state, std::size_t i, std::size_t j);

}  // namespace veln
