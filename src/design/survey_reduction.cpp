#include "design/survey_reduction.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace veln {

namespace {

constexpr int LowestFactor = 2;
constexpr int HighestFactor = 5;

/// By factor from 2: the smallest survey for which the step is offered, and the share that it takes away.
struct ReductionStep {
  int FewestSites;
  const char* Share;
};

constexpr std::array<ReductionStep, 4> Steps = {
    {{5000, "50%"}, {7500, "67%"}, {10000, "75%"}, {12500, "80%"}}};

}  // namespace

ReductionMenu OfferedReductions(int surveySize)
{
  ReductionMenu menu;
  for (std::size_t i = 0; i < Steps.size(); ++i) {
    menu.Steps.at(i) = surveySize >= Steps.at(i).FewestSites;
  }
  menu.mnuSRSReduce = menu.Steps[0];
  return menu;
}

void ReduceGridSize(SrsForm& form, SurveyState& state, int rfactor, Dialogs& dialogs)
{
  RequireReady(form);
  rfactor = std::clamp(rfactor, LowestFactor, HighestFactor);
  const auto step = static_cast<std::size_t>(rfactor - LowestFactor);
  if (!form.Reduction.mnuSRSReduce || !form.Reduction.Steps.at(step)) {
    throw Refusal(std::string("A reduction by ") + Steps.at(step).Share + " needs a survey of at least" +
                  NumberToString(Steps.at(step).FewestSites) + " sites that is not reduced already.");
  }
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    const bool stays = (i + 1) % static_cast<std::size_t>(rfactor) == 0;
    if (!stays && state.SiteStatus[i] == site_status::Free) {
      state.SiteStatus[i] = site_status::Outlier;
    }
  }
  dialogs.Beep();
  dialogs.Inform(std::string("The active # of survey sites have been reduced by ") + Steps.at(step).Share);
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
  std::ranges::replace(state.SiteStatus, site_status::Outlier, site_status::Free);
  dialogs.Beep();
  dialogs.Inform("All previously removed survey sites have been recovered.");
  form.Reduction.mnuSRSReduce = true;
  form.Reduction.mnuSRSRecover = false;
  InitPossSP(form, state, DetermineAvSites(state), dialogs);
}

int CountStrata(int surveySize)
{
  constexpr double SitesPerStratum = 400;
  constexpr double MostStrata = 9;
  const double rounded = std::nearbyint(surveySize / SitesPerStratum) + 1;  // a tie to the even neighbour
  return static_cast<int>(std::min(rounded, MostStrata));
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
    throw Refusal("Error!  Invalid Parsing Values!");
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
