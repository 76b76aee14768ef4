#pragma once

#include "signal/decorrelation.h"

#include <string>

namespace veln {

/// What `frmSigDecorr` shows: the two levels, the warning, and the results of its last run.
struct SigDecorrForm {
  DecorrelationLevels Levels;    ///< `HScroll1` and `HScroll2`
  std::string Label11;           ///< warning when a bar was held back
  bool ResultsVisible = false;   ///< `Frame2`; `Command1` is hidden then and `Command2` reads "Finished"
  bool Command3Visible = false;  ///< outliers can be listed
  DecorrelationCounts Counts;    ///< what `RetrieveCounts` hands over
  std::string Label3 = "n/a";    ///< sites above the masking level
  std::string Label4 = "n/a";    ///< sites above the outlier level
  std::string Label5 = "n/a";    ///< sites deleted before
};

/// Opens `frmSigDecorr`, with the levels of the last run if there was one.
SigDecorrForm LoadSigDecorrForm(const SurveyState& state);

/// A move of `HScroll1`: the masking level is held at the outlier level.
void MoveMaskingLevel(SigDecorrForm& form, int level);

/// A move of `HScroll2`: the outlier level is held at the masking level.
void MoveOutlierLevel(SigDecorrForm& form, int level);

/// `Command1`: runs the decorrelation and shows its results. Throws what `DecorrelateSignals` throws.
void PerformDecorrelation(SigDecorrForm& form, SurveyState& state);

}  // namespace veln
