#include "forms/exit_flow.h"

namespace veln {

ExitRoute RequestExit(const SurveyState& state, Dialogs& dialogs)
{
  if (!state.Menu.IsEnabled(MenuEntry::mnuVPOF)) {
    return dialogs.Ask(Question::Exit, "Do You Really Wish to Exit?") ? ExitRoute::Leave : ExitRoute::Stay;
  }
  if (HasDesign(state)) {
    return ExitRoute::Export;
  }
  dialogs.Beep();
  return dialogs.Ask(Question::ExitWithoutDesigns,
                     "Warning!  No sample designs have been created!  Do you still wish to exit?")
             ? ExitRoute::Leave
             : ExitRoute::Stay;
}

}  // namespace veln
