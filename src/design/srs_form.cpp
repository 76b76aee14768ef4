#include "design/srs_form.h"

#include "design/design_files.h"
#include "design/survey_reduction.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cstddef>

namespace veln {

namespace {

constexpr int FewestSites = 24;

/// Free sites that a size needs, with or without support sites.
int SitesNeeded(DesignSize size)
{
  constexpr std::array<int, 3> Needed = {FewestSites, 48, 80};
  return Needed.at(static_cast<std::size_t>(size));
}

bool& Enabled(SrsForm& form, DesignSize size)
{
  return form.OptionEnabled.at(static_cast<std::size_t>(size));
}

/// Selecting a size, by hand or by a rule: the sample size shown follows.
void SelectSize(SrsForm& form, DesignSize size)
{
  form.Size = size;
  form.LblSS = GeneralForm(SampleSize(size, form.IncludeSupportSites));
}

/// Closes a size, and moves on to the next smaller one if it was selected.
void DisableSize(SrsForm& form, DesignSize size, DesignSize smaller)
{
  Enabled(form, size) = false;
  if (form.Size == size) {
    SelectSize(form, smaller);
  }
}

void EndParsing(SrsForm& form)
{
  SetParseValues(form, 1, 0);
  form.Check3 = false;
}

/// Keeps the status line of the window while it passes a run on to its observer.
class StatusKeeper : public RunObserver {
 public:
  StatusKeeper(SrsForm& form, RunObserver& observer) : form_(form), observer_(observer) {}

  void Status(const std::string& text) override
  {
    form_.LblMS = text;
    observer_.Status(text);
  }
  void MapReady() override { observer_.MapReady(); }
  void CandidatesFound(int point, const PointCandidates& candidates) override
  {
    observer_.CandidatesFound(point, candidates);
  }
  void Started(std::span<const PointCandidates> points) override { observer_.Started(points); }
  void Exchanged(const CandidateSite& leaving, const CandidateSite& entering) override
  {
    observer_.Exchanged(leaving, entering);
  }
  void SupportFound(const CandidateSite& site) override { observer_.SupportFound(site); }

 private:
  SrsForm& form_;
  RunObserver& observer_;
};

std::string MissingSupportNote(int missing)
{
  return "Note: " + GeneralForm(missing) +
         (missing == 1 ? " support site could not be placed" : " support sites could not be placed") +
         ", since no free survey site lies near enough to the centre of the signal data.";
}

}  // namespace

std::string SrsForm::Text1() const
{
  constexpr double Hundredths = 100;
  return FormatNumber(HScroll1 / Hundredths, "0.00");
}

std::string SrsForm::OptionCaption(DesignSize size) const
{
  constexpr std::array<const char*, 3> Kinds = {" (limited design)", " (standard design)", " (full design)"};
  return "n=" + GeneralForm(SampleSize(size, IncludeSupportSites)) + Kinds.at(static_cast<std::size_t>(size));
}

DesignSettings SrsForm::Settings() const
{
  return {Size, ParseNumber(Text1()).value_or(1), Check2, Parsing, IncludeSupportSites, "0.000"};
}

LevelListing SrsForm::Listing(const SurveyState& state) const
{
  return {Size,
          Text1(),
          LblSS,
          LblSC,
          state.SignalCount,
          Check3,
          IncludeSupportSites,
          TransitionCounts(state, Check2)};
}

SrsForm OpenSrs(SurveyState& state, Dialogs& dialogs)
{
  state.Menu.Require(MenuEntry::mnuSRS, "Sample design");
  SrsForm form;
  SelectSize(form, DesignSize::Standard);
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
  SelectSize(form, size);
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
    throw Refusal("Error!  Invalid Parsing Values!");
  }
  form.Check3 = on;
  if (!on) {
    SetParseValues(form, 1, 0);
  }
}

void SetParseValues(SrsForm& form, int denominator, int modulus)
{
  constexpr int MostStrata = 10;
  const bool valid = denominator >= 1 && denominator <= MostStrata && modulus >= 0 && modulus < MostStrata &&
                     denominator > modulus;
  if (!valid) {
    throw Refusal("Error!  Invalid Parsing Values!");
  }
  form.Parsing = {denominator, modulus};
}

void IncludeSupport(SrsForm& form, bool include, Dialogs& dialogs)
{
  RequireReady(form);
  form.IncludeSupportSites = include;
  SelectSize(form, form.Size);
  dialogs.Inform(include ? "Support sites will be included in all sample designs."
                         : "Support sites will be excluded from all sample designs.");
}

void RunDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs, RunObserver& observer)
{
  RequireReady(form);
  state.Menu.Require(MenuEntry::mnuSRS, "Sample design");
  StatusKeeper keeper(form, observer);
  form.Finished = MakeDesign(state, form.Settings(), keeper);
  form.OptCriteria = form.Finished->OptCriteria;
  form.LoopCount = form.Finished->LoopCount;
  form.Command3Caption = "Finished";
  form.Command3ToolTip = "return to main program menu";
  if (form.Finished->MissingSupportSites > 0) {
    dialogs.Inform(MissingSupportNote(form.Finished->MissingSupportSites));
  }
}

std::vector<std::filesystem::path> SaveDesign(SrsForm& form, SurveyState& state, Dialogs& dialogs,
                                              const Clock& clock)
{
  if (!form.Finished) {
    throw Refusal("There is no finished design to save.");
  }
  const DesignToSave save{*form.Finished, RoundToInt16(ParseNumber(form.LblSS).value_or(0)).value_or(0),
                          form.SurveySizeNote};
  const auto paths = SaveSamInfo(state, save, dialogs, clock);
  form.Finished.reset();
  ClearOldTS(state);
  EndParsing(form);
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
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
  form.Finished.reset();
  ClearOldTS(state);
  EndParsing(form);
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
}

void CloseSrs(SrsForm& form, SurveyState& state)
{
  ClearOldTS(state);
  form.Finished.reset();
  form.Closed = true;
}

void InitPossSP(SrsForm& form, SurveyState& state, int available, Dialogs& dialogs)
{
  const std::string total = NumberToString(state.SurveySize);
  const std::string active = NumberToString(available);
  form.LblMS = "Total Survey size = " + total + "  Active (available) Survey size = " + active;
  form.SurveySizeNote = "(Total Survey Size = " + total + "   Active Survey Size = " + active + ")";
  if (available < SitesNeeded(DesignSize::Full)) {
    DisableSize(form, DesignSize::Full, DesignSize::Standard);
  }
  if (available < SitesNeeded(DesignSize::Standard)) {
    DisableSize(form, DesignSize::Standard, DesignSize::Limited);
  }
  if (available < FewestSites) {
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
