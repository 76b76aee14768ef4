#pragma once

#include "cli/picture_option.h"
#include "toolkit/file_store.h"
#include "workspace/survey_state.h"

#include <vector>

namespace veln {

/// The pictures as SVG files, drawn of the survey as it stands. Throws Refusal for a row or a design that
/// does not exist.
std::vector<ComposedFile> ComposePictures(SurveyState& state, const std::vector<PictureOption>& pictures,
                                          const PictureSettings& settings);

}  // namespace veln
