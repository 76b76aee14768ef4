#pragma once

#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

namespace veln {

/// What a request to leave the program leads to.
enum class ExitRoute {
  Stay,   ///< the user answered No
  Leave,  ///< the program ends at once
  Export  ///< a design exists: `frmOutFD` exports the survey and asks then
};

/// The exit flow, run by the menu entry and by closing the main window alike.
ExitRoute RequestExit(const SurveyState& state, Dialogs& dialogs);

}  // namespace veln
