#pragma once

#include "design/srs_form.h"

#include <array>
#include <string>

namespace veln {

/// Which reductions the size of a survey offers when the design window opens.
ReductionMenu OfferedReductions(int surveySize);

/// `ReduceGridSize`: keeps of the free sites those whose place in the survey (from 1) is a multiple of
/// `rfactor` (2 to 5; others are held there) and sets the rest aside until they are recovered. Beeps and
/// tells so. Throws Refusal if the menu does not offer the step.
void ReduceGridSize(SrsForm& form, SurveyState& state, int rfactor, Dialogs& dialogs);

/// `RecoverGridSites`: brings all sites back that reductions set aside. Throws Refusal if the menu does not
/// offer it.
void RecoverGridSites(SrsForm& form, SurveyState& state, Dialogs& dialogs);

/// Strata that a survey of this size can be parsed into, 2 to 9: one more than its size over 400, rounded.
int CountStrata(int surveySize);

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

/// `Command2` of `frmParse`: no parsing.
void CancelParsing(SrsForm& srs);

}  // namespace veln
