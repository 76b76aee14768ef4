#pragma once

#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <filesystem>
#include <string>

namespace veln {

/// Where a help document ("hdoc04") lies.
std::filesystem::path HelpDocumentPath(const SurveyState& state, const std::string& document);

/// What is told, after a beep, when a help document can't be loaded.
std::string HelpMissingWarning(const std::filesystem::path& document);

/// Reads a help document, as rich text. Throws Refusal with the warning above if it can't be read.
std::string ReadHelpDocument(const SurveyState& state, const std::string& document);

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
