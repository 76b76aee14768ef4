#include "forms/help_document.h"

#include "toolkit/file_store.h"
#include "toolkit/refusal.h"

#include <filesystem>

namespace veln {

HelpDocument LoadHelpDocument(const SurveyState& state, const std::string& document, Dialogs& dialogs)
{
  const std::filesystem::path path = state.ProgramDir / "helpdocs" / (document + ".rtf");
  try {
    HelpDocument help;
    help.Content = ReadFile(path);
    help.Text = ReadRichText(help.Content);
    return help;
  } catch (const Refusal&) {
    dialogs.Beep();
    throw Refusal("Warning!  File resource error.  VELN can not find the following file:\n" + path.string());
  }
}

}  // namespace veln
