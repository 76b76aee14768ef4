#include "forms/help_document.h"

#include "forms/output_view.h"
#include "toolkit/refusal.h"

#include <utility>

namespace veln {

HelpDocument LoadHelpDocument(const SurveyState& state, const std::string& document, Dialogs& dialogs)
{
  try {
    HelpDocument help;
    help.Content = ReadHelpDocument(state, document);
    help.Text = ReadRichText(help.Content);
    return help;
  } catch (const Refusal&) {
    dialogs.Beep();
    throw Refusal(HelpMissingWarning(HelpDocumentPath(state, document)));
  }
}

}  // namespace veln
