#pragma once

#include "toolkit/clock.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <filesystem>
#include <optional>
#include <string>

namespace veln {

/// What `frmMask` shows.
struct MaskForm {
  enum class Colour { LightBlue = 9, LightRed = 12 };

  std::string Text1;  ///< the site number, as typed
  std::string Label2 = " Action:";
  bool Label2Visible = false;
  Colour Label2Colour = Colour::LightBlue;
  std::string Text2 = "Selected Sites: (none)";
  bool Text2Visible = false;
  bool Check1 = false;  ///< save the selection to the output file
  bool Closed = false;
};

/// Opens `frmMask`. Throws Refusal while the main menu does not offer it.
MaskForm OpenMaskForm(const SurveyState& state);

/// The keystroke filter of `Text1`: digits and backspace. False, after a beep, for any
/// other character.
bool KeyInSiteNumber(char32_t character, Dialogs& dialogs);

/// `Command1` "Select Site": acts on the number in `Text1`, whatever state the site is in.
void SelectSite(MaskForm& form, SurveyState& state);

/// `Command2` "Unselect Site": frees the site, also one that was masked or set aside.
void UnselectSite(MaskForm& form, SurveyState& state);

/// `Command4`: lists the selection.
void ListSelectedSites(MaskForm& form, const SurveyState& state);

/// `Command3` "Done": saves the selection if `Check1` is on and closes. Returns the path written, if one was.
/// Throws what `SaveUDSamInfo` throws; the window stays open then.
std::optional<std::filesystem::path> FinishManualSelection(MaskForm& form, SurveyState& state,
                                                           Dialogs& dialogs, const Clock& clock);

}  // namespace veln
