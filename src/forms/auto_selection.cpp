#include "forms/auto_selection.h"

#include "forms/reduction_form.h"
#include "toolkit/number_text.h"

namespace veln {

std::optional<SelectionScores> SelectDesigns(SrsForm& form, SurveyState& state, SelectionScope scope,
                                             Dialogs& dialogs, RunObserver& observer)
{
  RequireReady(form);
  const SelectionPlan plan{StrataToAnalyse(state.SurveySize), scope};
  const auto count = static_cast<double>(CombinationsOf(plan).size());
  if (!dialogs.Ask(Question::ScoreDesigns, "Note: there are " + NumberToString(count) +
                                               " designs to analyze.\nDo you still wish to invoke the ADS "
                                               "algorithm?")) {
    return std::nullopt;
  }
  DesignSettings settings = form.Settings();
  settings.Size = AllowedSize(form.Size, DetermineAvSites(state));
  auto scores = ScoreDesigns(state, settings, plan, observer);
  if (scores) {
    CancelParsing(form);
    form.Check1 = true;
    form.HScroll1 = PlainDFactor;
    InitPossSP(form, state, DetermineAvSites(state), dialogs);
  }
  return scores;
}

std::string BestDesignText(const SelectionSummary& summary)
{
  constexpr double Hundredths = 100;
  if (!summary.Best) {
    return "No combination of strata and D_Factor has a usable score.";
  }
  return "The best design was generated using strata " + NumberToString(summary.Best->Stratum) +
         " and a D_Factor of " + NumberToString(DFactorOf(summary.Best->FactorIndex) / Hundredths);
}

std::string AcceptableText(const SelectionSummary& summary)
{
  if (!summary.Best) {
    return "";
  }
  return summary.Acceptable < 2
             ? "The best design appears to be the only acceptable design."
             : "There appear to be " + NumberToString(summary.Acceptable) + " acceptable designs.";
}

}  // namespace veln
