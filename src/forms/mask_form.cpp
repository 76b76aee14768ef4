#include "forms/mask_form.h"

#include "design/manual_design.h"
#include "toolkit/number_text.h"

#include <cstddef>
#include <vector>

namespace veln {

namespace {

/// The frame of Select and Unselect: finds the site of the number in `Text1` and puts its answer in place of
/// the list.
template <class Action>
void ActOnSite(MaskForm& form, const SurveyState& state, Action action)
{
  const double number = form.Text1.empty() ? 0 : ParseNumber(form.Text1).value_or(0);
  form.Text2Visible = false;
  form.Label2Visible = true;
  form.Label2Colour = MaskForm::Colour::LightBlue;
  if (const auto site = FindSite(state, number)) {
    form.Label2 = action(*site, NumberToString(number));
  } else {
    form.Label2Colour = MaskForm::Colour::LightRed;
    form.Label2 = UnknownSiteWarning(number);
  }
  form.Text1.clear();
}

}  // namespace

MaskForm OpenMaskForm(const SurveyState& state)
{
  state.Menu.Require(MenuEntry::mnuMask, "Manual site selection");
  return {};
}

bool KeyInSiteNumber(char32_t character, Dialogs& dialogs)
{
  const bool passes = character == 0 || (character >= U'0' && character <= U'9');
  if (!passes) {
    dialogs.Beep();
  }
  return passes;
}

void SelectSite(MaskForm& form, SurveyState& state)
{
  ActOnSite(form, state, [&state](std::size_t site, const std::string& number) -> std::string {
    return SelectSite(state, site) ? " Action: Site " + number + " successfully selected."
                                   : " Attention: This site is already selected!";
  });
}

void UnselectSite(MaskForm& form, SurveyState& state)
{
  ActOnSite(form, state, [&state](std::size_t site, const std::string& number) -> std::string {
    return UnselectSite(state, site) ? " Action: Site " + number + " successfully unselected."
                                     : " Attention: This site is not currently selected!";
  });
}

void ListSelectedSites(MaskForm& form, const SurveyState& state)
{
  form.Text2 = " Selected Sites: ";
  const std::vector<std::size_t> sites = SelectedSites(state);
  for (const std::size_t i : sites) {
    form.Text2 += " " + NumberToString(state.SiteId[i]);
  }
  if (sites.empty()) {
    form.Text2 += " none";
  }
  form.Text2Visible = true;
}

std::optional<std::filesystem::path> FinishManualSelection(MaskForm& form, SurveyState& state,
                                                           Dialogs& dialogs, const Clock& clock)
{
  std::optional<std::filesystem::path> written;
  if (form.Check1 && !SelectedSites(state).empty()) {
    written = SaveUDSamInfo(state, dialogs, clock);
  } else if (form.Check1) {
    dialogs.Inform("Sample count = 0, hence no output file was created...");
  }
  form.Closed = true;
  return written;
}

}  // namespace veln
