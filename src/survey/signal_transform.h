#pragma once

#include "workspace/survey_state.h"

#include <array>
#include <string>

namespace veln {

/// What `frmBasicStats` shows: labels as typed, the boxes checked, and which boxes are offered.
struct BasicStatsForm {
  std::array<std::string, 2> Labels;  ///< `Text1`, `Text2`
  bool Text2Visible = false;          ///< with two signals
  bool Check1Enabled = false;         ///< apply the natural log transformation
  bool Check2Enabled = false;         ///< remove it
  bool Check3Enabled = false;         ///< dS/m to mS/m
  bool Check4Enabled = false;         ///< mS/m to dS/m
  bool Check1 = false, Check2 = false, Check3 = false, Check4 = false;
};

/// Opens `frmBasicStats`: what the survey's present transformation and units offer, nothing checked.
BasicStatsForm LoadBasicStatsForm(const SurveyState& state);

/// Takes the labels, then transforms and rescales the signals as checked, in that order, and refreshes the
/// statistics. On logarithms a change of scale adds ln(100) or ln(0.01) instead of multiplying. Throws
/// Refusal when the step is closed, when signals are not positive, or when a result would leave the doubles:
/// the labels stand then, the signals do not change.
void ComputeSignals(SurveyState& state, const BasicStatsForm& form);

}  // namespace veln
