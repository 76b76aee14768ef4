#pragma once

#include "design/design_run.h"
#include "toolkit/clock.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <filesystem>
#include <string>
#include <vector>

namespace veln {

/// A finished design on its way into its files.
struct DesignToSave {
  const Design& Made;
  std::string SurveySizeNote;  ///< total and active survey size, as the report prints them
};

/// Saves a design under the next design number: writes its report (`rsd`) and its two site lists (`gps`,
/// `xrs`), marks the chosen sites, fills its row in the panel of designs and tells so. Returns the paths
/// written. Throws Refusal, with the record and older files as they were, if the three files can't all be put
/// in place.
std::vector<std::filesystem::path> SaveSamInfo(SurveyState& state, const DesignToSave& save, Dialogs& dialogs,
                                               const Clock& clock);

}  // namespace veln
