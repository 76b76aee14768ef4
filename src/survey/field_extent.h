#pragma once

#include "survey/statistics.h"
#include "workspace/survey_state.h"

namespace veln {

/// The ranges of x and y over all sites, whatever their status, in the file's units.
struct FieldExtent {
  Limits X, Y;

  [[nodiscard]] double Width() const { return X.Width(); }
  [[nodiscard]] double Height() const { return Y.Width(); }

  /// The extent made square: the shorter side, x if both are equal, becomes as long as the other about the
  /// centre given for it. An extent without any size reaches 1 to either side.
  [[nodiscard]] FieldExtent SquareAbout(double centreX, double centreY) const;
};

FieldExtent MeasureField(const SurveyState& state);

/// Throws Refusal if distances in the field can't be computed: its coordinates are so large that squares
/// leave the doubles.
void RequireMeasurable(const FieldExtent& field);

/// The straight-line distance of two sites.
double SiteDistance(const SurveyState& state, std::size_t i, std::size_t j);

}  // namespace veln
