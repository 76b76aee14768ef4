#pragma once

#include "workspace/survey_state.h"

namespace veln {

enum class TranslationKind { Swap, Rotate, ReverseX, ReverseY };

/// One change of the coordinates for good.
struct CoordinateTranslation {
  TranslationKind Kind = TranslationKind::Swap;
  int Degrees = 0;  ///< for a rotation: whole degrees, -180 to 180, positive counter-clockwise
};

/// Swaps, rotates or mirrors all sites; rotation and mirroring are about the mean point of all sites. Keeps
/// account in `Orientation`. Throws Refusal, with the coordinates as they were, when no survey is imported or
/// a result would leave the doubles.
void TranslateCoordinates(SurveyState& state, const CoordinateTranslation& translation);

}  // namespace veln
