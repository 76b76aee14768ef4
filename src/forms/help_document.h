#pragma once

#include "toolkit/dialogs.h"
#include "toolkit/rich_text.h"
#include "workspace/survey_state.h"

#include <string>

namespace veln {

/// A help document, as it lies on disk and as it reads.
struct HelpDocument {
  std::string Content;  ///< byte for byte
  RichText Text;
};

/// Reads a help document ("hdoc04"). One that is missing, can't be read or is damaged beeps and throws
/// Refusal with the warning that names it.
HelpDocument LoadHelpDocument(const SurveyState& state, const std::string& document, Dialogs& dialogs);

}  // namespace veln
