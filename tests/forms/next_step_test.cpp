#include "forms/next_step.h"

#include "support/testing.h"

namespace veln {
namespace {

/// A record of `sites` free sites to which these events have happened.
SurveyState StateAfter(std::initializer_list<WorkflowEvent> events, int sites = 0)
{
  SurveyState state;
  state.SurveySize = sites;
  state.SiteStatus.assign(static_cast<std::size_t>(sites), site_status::Free);
  for (const WorkflowEvent event : events) {
    state.Menu.Apply(event);
  }
  return state;
}

using enum WorkflowEvent;

TEST(NextStep, LeadsFromTheProjectToTheImport)
{
  EXPECT_EQ(NextStep(StateAfter({})), "Next: set or create a project and a field ID");
  EXPECT_EQ(NextStep(StateAfter({ProjectAccepted})), "Next: import a survey data file");
  EXPECT_EQ(NextStep(StateAfter({ProjectAccepted, SurveyImported}, 1500)), "Next: decorrelate 1500 sites");
}

TEST(NextStep, TellsWhatValidationHasToDecide)
{
  SurveyState state = StateAfter({SurveyImported, SignalsDecorrelated}, 100);
  EXPECT_EQ(NextStep(state), "Next: validate and accept 100 sites");
  state.SiteStatus[3] = site_status::Outlier;
  state.Decorrelation.Counts.OutlierCount = 1;
  EXPECT_EQ(NextStep(state), "Next: validate 100 sites: delete 1 outlier, or accept them as masked");
  state.SiteStatus.erase(state.SiteStatus.begin() + 3);
  state.SurveySize = 99;
  EXPECT_EQ(NextStep(state), "Next: decorrelate the remaining 99 sites again");
}

TEST(NextStep, CountsFreeSitesForADesignAndAllForTheExport)
{
  SurveyState state = StateAfter({SurveyImported, SignalsDecorrelated, ConfigurationAccepted}, 100);
  state.SiteStatus[0] = site_status::Masked;
  EXPECT_EQ(NextStep(state), "Next: design a sample from 99 free sites");
  SurveyState exhausted = state;
  exhausted.Menu.Apply(DesignsExhausted);
  EXPECT_EQ(NextStep(exhausted), "The survey is accepted, with 99 free sites: view its output files");
  state.DesignCount = 1;
  state.Menu.Apply(DesignSaved);
  EXPECT_EQ(NextStep(state),
            "Next: design another sample from 99 free sites, or exit, which exports 100 sites");
  state.Menu.Apply(DesignsExhausted);
  EXPECT_EQ(NextStep(state), "Next: exit, which exports 100 sites");
}

}  // namespace
}  // namespace veln
