#pragma once

#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// The file dialog of "View / Print Output Files": the five filters, in the project's directory.
FileQuestion OutputFileQuestion(const SurveyState& state);

/// "View / Print Output Files": lets the user choose an output file and starts the text editor on it.
/// Cancelling ends it silently. Throws Refusal while no configuration is accepted, or with the system's text
/// if the editor can't be started.
void ViewOutputFiles(const SurveyState& state, Dialogs& dialogs);

/// "Print this Help File": copies the document that is shown, byte for byte, to `helpdoc.rtf` and starts the
/// text editor on it. Throws Refusal with the system's reason.
void PrintHelpDocument(const SurveyState& state, const std::string& content, Dialogs& dialogs);

}  // namespace veln
