#pragma once

#include "signal/validation.h"

#include <string>

namespace veln {

/// What `frmSigVal` shows: the two ways to go on, and the options of an acceptance with what is enabled of
/// them.
struct SigValForm {
  bool Transect = false;
  bool OutliersFound = false;
  bool Option1Enabled = false;  ///< delete all outliers
  bool Option1 = false;         ///< selected; `Option2`, accept, is then not
  bool Option2 = false;
  bool Check2Enabled = false;  ///< transition analysis
  bool Check2 = false;
  bool ChkEB1Enabled = false;  ///< edge buffering
  bool ChkEB1 = false;
  bool LblRCEnabled = false;
  std::string LblRC = "Row Count = n/a";
  bool Label2Enabled = false;
  bool OptEBEnabled = false;  ///< both `OptEB1` and `OptEB2`
  bool OptEB1 = false;        ///< first and last row too
  bool OptEB2 = false;        ///< row ends only

  [[nodiscard]] const char* Option2Caption() const;
  [[nodiscard]] const char* Option2ToolTip() const;
  [[nodiscard]] const char* Command2Caption() const;
  [[nodiscard]] const char* Command2ToolTip() const;
  /// What the form asks of an acceptance.
  [[nodiscard]] AcceptanceOptions Options() const;
};

/// Opens `frmSigVal` by the outlier count of the last decorrelation and the survey's type.
SigValForm LoadSigValForm(const SurveyState& state);

/// A click on `Option1`: closes the transect options. The tick of `Check2` stays but has no effect.
void ChooseDeletion(SigValForm& form);

/// A click on `Option2`: opens the transect options of a transect survey.
void ChooseAcceptance(SigValForm& form, const SurveyState& state);

/// A click on `ChkEB1`.
void TickEdgeBuffering(SigValForm& form, bool on);

/// A click on `OptEB1` (true) or `OptEB2`.
void ChooseRowBuffering(SigValForm& form, bool firstAndLastRow);

}  // namespace veln
