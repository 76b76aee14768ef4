#include "forms/exit_flow.h"

#include "support/testing.h"

namespace veln {

TEST(ExitFlow, ExportsADesignAndAsksWithoutOne)
{
  struct Case {
    const char* What;
    bool Accepted;
    int Designs;
    bool Manual;
    std::vector<std::string> Said;
  };
  const std::vector<std::string> question = {"ask: Do You Really Wish to Exit?"};
  const std::vector<std::string> warning = {
      "beep", "ask: Warning!  No sample designs have been created!  Do you still wish to exit?"};
  for (const Case& c : {Case{"not accepted: the design does not count", false, 1, false, question},
                        Case{"accepted, without a design", true, 0, false, warning},
                        Case{"accepted, with a design", true, 1, false, {}},
                        Case{"accepted, with a manual design", true, 0, true, {}}}) {
    SurveyState state;
    state.DesignCount = c.Designs;
    state.ManualDesignDone = c.Manual;
    if (c.Accepted) {
      state.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
    }
    for (const bool yes : {true, false}) {
      const bool asked = !c.Said.empty();
      ScriptedDialogs dialogs(asked ? std::deque{yes} : std::deque<bool>{});
      const ExitRoute answered = yes ? ExitRoute::Leave : ExitRoute::Stay;
      EXPECT_EQ(RequestExit(state, dialogs), asked ? answered : ExitRoute::Export) << c.What;
      EXPECT_EQ(dialogs.Said, c.Said) << c.What;
      EXPECT_TRUE(std::ranges::all_of(dialogs.Named, YesLoses));
    }
  }
}

}  // namespace veln
