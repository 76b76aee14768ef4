#include "forms/reduction_form.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cstddef>

namespace veln {

ReductionMenu OfferedReductions(int surveySize)
{
  ReductionMenu menu;
  for (std::size_t i = 0; i < ReductionSteps.size(); ++i) {
    menu.Steps.at(i) = surveySize >= ReductionSteps.at(i).FewestSites;
  }
  menu.mnuSRSReduce = menu.Steps[0];
  return menu;
}

void ReduceGridSize(SrsForm& form, SurveyState& state, int rfactor, Dialogs& dialogs)
{
  RequireReady(form);
  const int lowest = ReductionSteps.front().Factor;
  const int held = std::clamp(rfactor, lowest, ReductionSteps.back().Factor);
  const auto index = static_cast<std::size_t>(held - lowest);
  const ReductionStep& step = ReductionSteps.at(index);
  const std::string share = GeneralForm(step.Percent) + "%";
  if (!form.Reduction.mnuSRSReduce || !form.Reduction.Steps.at(index)) {
    throw Refusal("A reduction by " + share + " needs a survey of at least" +
                  NumberToString(step.FewestSites) + " sites that is not reduced already.");
  }
  ReduceGridSize(state, step);
  dialogs.Beep();
  dialogs.Inform("The active # of survey sites have been reduced by " + share);
  form.Reduction.mnuSRSReduce = false;
  form.Reduction.mnuSRSRecover = true;
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
}

void RecoverGridSites(SrsForm& form, SurveyState& state, Dialogs& dialogs)
{
  RequireReady(form);
  if (!form.Reduction.mnuSRSRecover) {
    throw Refusal("There is no survey reduction to take back.");
  }
  RecoverGridSites(state);
  dialogs.Beep();
  dialogs.Inform("All previously removed survey sites have been recovered.");
  form.Reduction.mnuSRSReduce = true;
  form.Reduction.mnuSRSRecover = false;
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
}

std::string ParseForm::Label2() const
{
  return NumberToString(StrataCount) + " distinct strata";
}

ParseForm LoadParseForm(const SurveyState& state)
{
  return {CountStrata(state.SurveySize), 0};
}

void ChooseStratum(ParseForm& form, int stratum)
{
  if (!form.OptionEnabled(stratum)) {
    throw Refusal(InvalidParsing);
  }
  form.StrataChoice = stratum - 1;
}

void InvokeParsing(const ParseForm& form, SrsForm& srs, Dialogs& dialogs)
{
  SetParseValues(srs, form.StrataCount, form.StrataChoice);
  dialogs.Inform("Note: Parsing will be in effect for the next SRS design only.");
}

void CancelParsing(SrsForm& srs)
{
  SetParseValues(srs, 1, 0);
  srs.Check3 = false;
}

}  // namespace veln
