#include "forms/srs_form.h"

#include "design/design_files.h"
#include "forms/reduction_form.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cstddef>

namespace veln {

namespace {

bool& Enabled(SrsForm& form, DesignSize size)
{
  return form.OptionEnabled.at(static_cast<std::size_t>(size));
}

/// Back to Ready: nothing is left of the finished design, nor of its stratum.
void EndDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs)
{
  form.Finished.reset();
  form.Held.reset();
  CancelParsing(form);
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
}

/// Keeps the status line of the window.
class StatusKeeper : public RunObserver {
 public:
  StatusKeeper(SrsForm& form, RunObserver& observer) : RunObserver(&observer), form_(form) {}

  void Status(const std::string& text) override
  {
    form_.LblMS = text;
    RunObserver::Status(text);
  }

 private:
  SrsForm& form_;
};

}  // namespace

std::string SrsForm::Text1() const
{
  return FormatNumber(Settings().DFactor, "0.00");
}

std::string SrsForm::LblSS() const
{
  return GeneralForm(SampleSize(Size, IncludeSupportSites));
}

std::string SrsForm::OptionCaption(DesignSize size) const
{
  constexpr std::array<const char*, 3> Kinds = {" (limited design)", " (standard design)", " (full design)"};
  return "n=" + GeneralForm(SampleSize(size, IncludeSupportSites)) + Kinds.at(static_cast<std::size_t>(size));
}

DesignSettings SrsForm::Settings() const
{
  constexpr double Hundredths = 100;
  return {Size, HScroll1 / Hundredths, Check2, Parsing, IncludeSupportSites, "0.000"};
}

LevelListing SrsForm::Listing(const SurveyState& state) const
{
  return {Settings(), state.SignalCount, Check3, TransitionCounts(state, Check2)};
}

SrsForm OpenSrs(SurveyState& state, Dialogs& dialogs)
{
  state.Menu.Require(MenuEntry::mnuSRS, "Sample design");
  SrsForm form;
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
  form.LblSC = NumberToString(state.SignalCount);
  form.LblDN = GeneralForm(state.DesignCount + 1);
  form.Check2Enabled = state.TransitionDone;
  form.Check3Enabled = state.SurveySize >= FewestSitesForParsing;
  form.Reduction = OfferedReductions(state.SurveySize);
  return form;
}

void ChooseSize(SrsForm& form, const SurveyState& state, DesignSize size)
{
  RequireReady(form);
  if (!Enabled(form, size)) {
    throw Refusal("A design of this size needs" + NumberToString(SitesNeeded(size)) +
                  " available survey sites, but there are only" + NumberToString(DetermineAvSites(state)) +
                  ".");
  }
  form.Size = size;
}

void AdjustDFactor(SrsForm& form, bool on)
{
  RequireReady(form);
  form.Check1 = on;
}

void MoveDFactor(SrsForm& form, int hundredths)
{
  RequireReady(form);
  form.HScroll1 = std::clamp(hundredths, LowestDFactor, HighestDFactor);
}

void IgnoreTransition(SrsForm& form, bool on)
{
  RequireReady(form);
  if (!form.Check2Enabled) {
    throw Refusal("There is no transition analysis whose scores could be ignored.");
  }
  form.Check2 = on;
}

void SwitchParsing(SrsForm& form, bool on)
{
  RequireReady(form);
  if (!form.Check3Enabled) {
    throw Refusal(InvalidParsing);
  }
  form.Check3 = on;
  if (!on) {
    CancelParsing(form);
  }
}

void SetParseValues(SrsForm& form, int denominator, int modulus)
{
  constexpr int LargestDenominator = 10;
  if (denominator > LargestDenominator || modulus < 0 || modulus >= denominator) {
    throw Refusal(InvalidParsing);
  }
  form.Parsing = {denominator, modulus};
}

void IncludeSupport(SrsForm& form, bool include, Dialogs& dialogs)
{
  RequireReady(form);
  form.IncludeSupportSites = include;
  dialogs.Inform(include ? "Support sites will be included in all sample designs."
                         : "Support sites will be excluded from all sample designs.");
}

void RunDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs, RunObserver& observer)
{
  RequireReady(form);
  state.Menu.Require(MenuEntry::mnuSRS, "Sample design");
  StatusKeeper keeper(form, observer);
  form.Finished = MakeDesign(state, form.Settings(), keeper);
  form.Held = HoldCandidates(state, *form.Finished);
  form.OptCriteria = form.Finished->OptCriteria;
  form.LoopCount = form.Finished->LoopCount;
  form.Command3Caption = "Finished";
  form.Command3ToolTip = "return to main program menu";
  if (form.Finished->MissingSupportSites > 0) {
    dialogs.Inform("Note: " + Counted(form.Finished->MissingSupportSites, "support site") +
                   " could not be placed, since no free survey site lies near enough to the centre of the "
                   "signal data.");
  }
}

std::vector<std::filesystem::path> SaveDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs,
                                              const Clock& clock)
{
  if (!form.Finished) {
    throw Refusal("There is no finished design to save.");
  }
  const auto paths = SaveSamInfo(state, {*form.Finished, form.SurveySizeNote}, dialogs, clock);
  EndDesign(form, state, dialogs);
  if (state.DesignCount == MaxDesigns) {
    dialogs.Inform("Note: This was your 5th sampling design.  No further designs can be generated...");
    state.Menu.Apply(WorkflowEvent::DesignsExhausted);
    form.Closed = true;
  }
  if (!form.Closed) {
    form.LblDN = GeneralForm(state.DesignCount + 1);
  }
  return paths;
}

void DiscardDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs)
{
  EndDesign(form, state, dialogs);
}

void CloseSrs(SrsForm& form)
{
  form.Finished.reset();
  form.Held.reset();
  form.Closed = true;
}

void InitPossSP(SrsForm& form, SurveyState& state, int available, Dialogs& dialogs)
{
  const std::string total = NumberToString(state.SurveySize);
  const std::string active = NumberToString(available);
  form.LblMS = "Total Survey size = " + total + "  Active (available) Survey size = " + active;
  form.SurveySizeNote = "(Total Survey Size = " + total + "   Active Survey Size = " + active + ")";
  for (const DesignSize size : {DesignSize::Full, DesignSize::Standard}) {
    if (available < SitesNeeded(size)) {
      Enabled(form, size) = false;  // for as long as the window is open
    }
  }
  form.Size = AllowedSize(form.Size, available);
  if (available < FewestAvailable) {
    dialogs.Inform(TooFewSites);
    state.Menu.Apply(WorkflowEvent::DesignsExhausted);
    form.Closed = true;
  }
}

void RequireReady(const SrsForm& form)
{
  if (form.Finished) {
    throw Refusal("Please save the finished design or generate a new one first.");
  }
}

}  // namespace veln
