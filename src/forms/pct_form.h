#pragma once

#include "graphics/survey_graph.h"
#include "survey/coordinate_translation.h"
#include "workspace/survey_state.h"

#include <optional>
#include <string>

namespace veln {

/// What is told when a design waits for its decision: one saved design must not carry two sets of
/// coordinates.
inline constexpr const char* DesignIsPending = "Please save or discard the current sample design first.";

/// The state of `frmPCT` "Coordinate Translation Options". The option selected is light blue, the others
/// black.
struct PctForm {
  std::optional<TranslationKind> Selected;  ///< `Option1` to `Option4`; none at first
  int HScroll1 = 0;                         ///< degrees, -180 to 180
  bool Closed = false;

  /// `Text1`, the degrees shown.
  [[nodiscard]] std::string Text1() const;
  /// `HScroll1`, `Label1` and `Text1` are shown.
  [[nodiscard]] bool RotationVisible() const { return Selected == TranslationKind::Rotate; }
  /// `Command2` is shown.
  [[nodiscard]] bool Command2Visible() const { return Selected.has_value(); }
};

/// A move of `HScroll1`; held between -180 and 180.
void MoveRotation(PctForm& form, int degrees);

/// `Command2` "Apply Translation": translates the survey, closes, and tells the graphics window. Throws
/// Refusal, with nothing changed and the form open, while a design waits for its decision or when the
/// coordinates would leave the doubles.
void ApplyTranslation(PctForm& form, SurveyGraph& graph, SurveyState& state, bool designIsPending);

}  // namespace veln
