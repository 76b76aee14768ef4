#pragma once

#include "forms/srs_form.h"

#include <string>

namespace veln {

/// Which reductions the size of a survey offers when the design window opens.
ReductionMenu OfferedReductions(int surveySize);

/// `mnuSRSr50` to `mnuSRSr80`: reduces the survey by the step of this factor (2 to 5; others are held there),
/// beeps and tells so. Throws Refusal if the menu does not offer the step.
void ReduceGridSize(SrsForm& form, SurveyState& state, int rfactor, Dialogs& dialogs);

/// `mnuSRSRecover`: takes all reductions back. Throws Refusal if the menu does not offer it.
void RecoverGridSites(SrsForm& form, SurveyState& state, Dialogs& dialogs);

/// What `frmParse` shows.
struct ParseForm {
  int StrataCount = 2;
  int StrataChoice = 0;  ///< the chosen stratum, from 0

  /// How many strata the survey can be parsed into, in words.
  [[nodiscard]] std::string Label2() const;
  /// Whether the option of a stratum (from 1) is open.
  [[nodiscard]] bool OptionEnabled(int stratum) const { return stratum >= 1 && stratum <= StrataCount; }
};

/// Opens `frmParse`.
ParseForm LoadParseForm(const SurveyState& state);

/// A click on the option of a stratum, from 1. Throws Refusal if the survey has no such stratum.
void ChooseStratum(ParseForm& form, int stratum);

/// `Command1` of `frmParse`: the next design alone uses the chosen stratum.
void InvokeParsing(const ParseForm& form, SrsForm& srs, Dialogs& dialogs);

/// `Command2` of `frmParse`, and the end of every design: no parsing.
void CancelParsing(SrsForm& srs);

}  // namespace veln
