#pragma once

#include "design/design_run.h"
#include "design/survey_reduction.h"
#include "forms/level_list.h"
#include "toolkit/clock.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// What is told when fewer than 24 free sites are left, which closes the window and the design menu.
inline constexpr const char* TooFewSites =
    "There are not enough avaliable survey sites to generate any more Sampling Designs";

/// What is told of strata that there are not.
inline constexpr const char* InvalidParsing = "Error!  Invalid Parsing Values!";

/// The entries of the reduction menu of `frmSRS`, one a step.
struct ReductionMenu {
  bool mnuSRSReduce = false;
  std::array<bool, ReductionSteps.size()> Steps{};
  bool mnuSRSRecover = false;
  bool operator==(const ReductionMenu&) const = default;
};

/// The state of the design window `frmSRS`: Ready until a run has finished, Finished until its design is
/// saved or thrown away. The window mirrors it; the rules are the functions below, one for each action of the
/// user. In the Finished state the settings are closed: a function that would change them or start a run
/// throws Refusal.
struct SrsForm {
  bool Closed = false;             ///< the window is not to stay open
  std::optional<Design> Finished;  ///< the design that waits for a decision; empty in the Ready state
  CandidateHold Held;              ///< the candidates of that design
  DesignSize Size = DesignSize::Standard;
  std::array<bool, 3> OptionEnabled = {true, true, true};  ///< by size
  bool Check1 = false;          ///< "Adjust Design Factor": the D-factor's controls are visible
  int HScroll1 = PlainDFactor;  ///< D-factor in hundredths
  bool Check2 = false;          ///< "Ignore TA Information"
  bool Check2Enabled = false;
  bool Check3 = false;  ///< "Invoke Parsing"
  bool Check3Enabled = false;
  Stratum Parsing;
  bool IncludeSupportSites = true;
  ReductionMenu Reduction;
  std::string LblDN, LblSC, LblMS, SurveySizeNote;
  std::string Command3Caption = "Cancel";
  std::string Command3ToolTip = " exit without invoking SRSS algorithm ";
  double OptCriteria = 0;  ///< of the last single run
  int LoopCount = 0;       ///< of the last single run

  /// The D-factor as shown, "0.80" to "1.20".
  [[nodiscard]] std::string Text1() const;
  /// The sample size of the next design.
  [[nodiscard]] std::string LblSS() const;
  /// The caption of a size option, by the support site setting.
  [[nodiscard]] std::string OptionCaption(DesignSize size) const;
  /// What a run takes from the window.
  [[nodiscard]] DesignSettings Settings() const;
  /// What the listing of the design levels takes from it.
  [[nodiscard]] LevelListing Listing(const SurveyState& state) const;
};

/// Opens the window. With fewer than 24 free sites it tells so and comes back closed. Throws Refusal while
/// the main menu does not offer it.
SrsForm OpenSrs(SurveyState& state, Dialogs& dialogs);

/// A click on a size. Throws Refusal if the size is disabled; the message tells the sites needed and those
/// there.
void ChooseSize(SrsForm& form, const SurveyState& state, DesignSize size);

/// A click on `Check1`. Turning it off leaves the D-factor as it is.
void AdjustDFactor(SrsForm& form, bool on);

/// A move of `HScroll1`, in hundredths; held between 80 and 120.
void MoveDFactor(SrsForm& form, int hundredths);

/// A click on `Check2`. Throws Refusal without transition analysis.
void IgnoreTransition(SrsForm& form, bool on);

/// A click on `Check3`. Off goes back to no parsing; on leaves the choice of a stratum to `frmParse`. Throws
/// Refusal for a survey of fewer than 400 sites.
void SwitchParsing(SrsForm& form, bool on);

/// `SetParseValues`: the denominator from 1 to 10, the modulus from 0 to 9 and below it. Throws Refusal
/// otherwise, and the old values stay.
void SetParseValues(SrsForm& form, int denominator, int modulus);

/// `mnuSSinclude` and `mnuSSexclude`.
void IncludeSupport(SrsForm& form, bool include, Dialogs& dialogs);

/// `Command2`: makes a design and waits for a decision. A note tells support sites that could not be placed.
/// Throws what `MakeDesign` throws; the window stays Ready then.
void RunDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs, RunObserver& observer);

/// `Command4`: saves the finished design and returns to Ready, or closes after the fifth design or when too
/// few sites are left. Returns the paths written. Throws what `SaveSamInfo` throws; the window stays Finished
/// then.
std::vector<std::filesystem::path> SaveDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs,
                                              const Clock& clock);

/// `Command5`: throws the finished design away.
void DiscardDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs);

/// `Command3`, in every state: a design that is not saved leaves no trace.
void CloseSrs(SrsForm& form);

/// `InitPossSP`: the rules on available sites, with `available` the free sites: 80 for the full size, 48 for
/// the standard size, 24 for any. Refreshes the status line and the survey size note.
void InitPossSP(SrsForm& form, SurveyState& state, int available, Dialogs& dialogs);

/// Throws Refusal in the Finished state, when settings and runs are closed.
void RequireReady(const SrsForm& form);

}  // namespace veln
