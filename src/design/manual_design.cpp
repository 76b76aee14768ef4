#include "design/manual_design.h"

#include "toolkit/file_store.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/text_report.h"

#include <algorithm>

namespace veln {

namespace {

constexpr const char* Suffix = "ugsd.txt";
constexpr const char* SignalFormat = "0.00";
constexpr const char* CoordinateFormat = "########0.0###";

void PutSite(TextReport& report, const SurveyState& state, std::size_t i)
{
  const bool two = state.SignalCount == 2;
  report.At(3).Number(state.SiteId[i]).At(15).Number(state.Signal1[i], SignalFormat);
  if (two) {
    report.At(23).Number(state.Signal2[i], SignalFormat);
  }
  report.At(31).Number(state.Decorr1[i], SignalFormat);
  if (two) {
    report.At(40).Number(state.Decorr2[i], SignalFormat);
  }
  report.At(50)
      .Number(state.CoordX[i], CoordinateFormat)
      .At(65)
      .Number(state.CoordY[i], CoordinateFormat)
      .EndLine();
}

std::string ComposeManualDesign(const SurveyState& state, const std::vector<std::size_t>& sites,
                                const Clock& clock)
{
  TextReport report;
  report.Line("Full Path:    " + OutputPath(state, Suffix).string())
      .Line("Project:      " + state.ProjectName)
      .Line("File Name:    " + OutputName(state, Suffix))
      .BlankLines()
      .Line("Date & Time:  " + clock())
      .Line("Field Desc:   " + state.FieldDescription)
      .BlankLines()
      .Line("Sample Size:  " + FormatNumber(static_cast<double>(sites.size()), "0"))
      .BlankLines(3)
      .Line("Target Information for User Generated Sampling Design")
      .BlankLines()
      .Line(state.SignalCount == 1
                ? "  Site ID     s1_sig          Ds1-STD            X-Coordinate   Y-Coordinate "
                : "  Site ID     s1_sig  s2_sig  Ds1-STD  Ds2-STD   X-Coordinate   Y-Coordinate ")
      .BlankLines();
  for (const std::size_t i : sites) {
    PutSite(report, state, i);
  }
  return report.Content();
}

/// The frame of Select and Unselect: finds the site of the number in `Text1` and puts its answer in place of
/// the list.
template <class Action>
void ActOnSite(MaskForm& form, SurveyState& state, Action action)
{
  const double number = form.Text1.empty() ? 0 : ParseNumber(form.Text1).value_or(0);
  form.Text2Visible = false;
  form.Label2Visible = true;
  form.Label2Colour = MaskForm::Colour::LightBlue;
  if (const auto site = FindSite(state, number)) {
    form.Label2 = action(state.SiteStatus[*site], NumberToString(number));
  } else {
    form.Label2Colour = MaskForm::Colour::LightRed;
    form.Label2 = UnknownSiteWarning(number);
  }
  form.Text1.clear();
}

}  // namespace

std::optional<std::size_t> FindSite(const SurveyState& state, double siteNumber)
{
  const auto found =
      std::ranges::find_if(state.SiteId, [siteNumber](std::int16_t id) { return id == siteNumber; });
  if (found == state.SiteId.end()) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(found - state.SiteId.begin());
}

std::string UnknownSiteWarning(double siteNumber)
{
  return " Warning! Site " + NumberToString(siteNumber) + " does not exist.";
}

std::vector<std::size_t> SelectedSites(const SurveyState& state)
{
  std::vector<std::size_t> sites;
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    if (state.SiteStatus[i] == site_status::Selected) {
      sites.push_back(i);
    }
  }
  return sites;
}

std::filesystem::path SaveUDSamInfo(SurveyState& state, Dialogs& dialogs, const Clock& clock)
{
  const std::vector<std::size_t> sites = SelectedSites(state);
  const std::filesystem::path path = OutputPath(state, Suffix);
  try {
    WriteFiles({{path, ComposeManualDesign(state, sites, clock)}});
  } catch (const Refusal& refusal) {
    throw Refusal("Warning: could not create output UGSD file...\n" + refusal.Message());
  }
  state.ManualDesignSize = static_cast<int>(sites.size());
  dialogs.Inform("User generated sampling design information has been saved to " + OutputName(state, Suffix));
  state.ManualDesignDone = true;
  state.Menu.Apply(WorkflowEvent::ManualDesignSaved);
  return path;
}

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
  ActOnSite(form, state, [](std::int16_t& status, const std::string& number) -> std::string {
    if (status == site_status::Selected) {
      return " Attention: This site is already selected!";
    }
    status = site_status::Selected;
    return " Action: Site " + number + " successfully selected.";
  });
}

void UnselectSite(MaskForm& form, SurveyState& state)
{
  ActOnSite(form, state, [](std::int16_t& status, const std::string& number) -> std::string {
    if (status == site_status::Free) {
      return " Attention: This site is not currently selected!";
    }
    status = site_status::Free;
    return " Action: Site " + number + " successfully unselected.";
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
