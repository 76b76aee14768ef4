#pragma once

#include "survey/data_load.h"
#include "workspace/survey_state.h"

#include <array>
#include <optional>
#include <string>

namespace veln {

/// What the user tells of a raw survey file.
struct ImportRequest {
  std::string FileName;  ///< as typed or browsed
  RecordLayout Layout;
  std::array<std::string, 2> Labels;
  ConductivityUnits Units = ConductivityUnits::MilliSiemens;
  bool Log = false;                                   ///< natural log transform
  std::optional<std::string> Content = std::nullopt;  ///< the file's, where it was read already
};

/// Whether a character can not stand in a signal's label: a control character, or the double quote, which
/// stands around labels in the survey's export.
bool IsNoLabelCharacter(char32_t character);

/// Reads a raw survey file into the record, shows its statistics and opens graphics, transformation and
/// decorrelation. Throws Refusal, with the record as it was, when the import is closed, the file is missing
/// or faulty, larger than any survey, its numbers are too large for its statistics, or a column of a
/// two-signal survey is constant.
void ImportSurvey(SurveyState& state, const ImportRequest& request, const ImportProgress& progress = {});

}  // namespace veln
