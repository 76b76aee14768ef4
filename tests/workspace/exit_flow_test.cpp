#include "workspace/exit_flow.h"

#include "support/scripted_dialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veln {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ExitFlow, BeforeAnAcceptedConfigurationOneQuestionIsAsked)
{
  SurveyState state;
  state.DesignCount = 1;  // does not count while output files can't be viewed
  for (const bool yes : {true, false}) {
    ScriptedDialogs dialogs({yes});
    EXPECT_EQ(RequestExit(state, dialogs), yes ? ExitRoute::Leave : ExitRoute::Stay);
    EXPECT_THAT(dialogs.Said, ElementsAre("ask: Do You Really Wish to Exit?"));
  }
}

TEST(ExitFlow, WithADesignTheSurveyIsExportedWithoutAQuestion)
{
  for (const bool manual : {true, false}) {
    SurveyState state;
    state.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
    state.ManualDesignDone = manual;
    state.DesignCount = manual ? 0 : 1;
    ScriptedDialogs dialogs;
    EXPECT_EQ(RequestExit(state, dialogs), ExitRoute::Export);
    EXPECT_THAT(dialogs.Said, IsEmpty());
  }
}

TEST(ExitFlow, WithoutADesignABeepAndAWarningComeFirst)
{
  SurveyState state;
  state.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
  for (const bool yes : {true, false}) {
    ScriptedDialogs dialogs({yes});
    EXPECT_EQ(RequestExit(state, dialogs), yes ? ExitRoute::Leave : ExitRoute::Stay);
    EXPECT_THAT(dialogs.Said, ElementsAre("beep",
                                          "ask: Warning!  No sample designs have been created!  Do you "
                                          "still wish to exit?"));
  }
}

}  // namespace veln
