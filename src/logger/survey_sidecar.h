#pragma once

#include "logger/conversion.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace veln {

/// What the file `NAME.survey.json` beside a converted survey tells whoever imports it.
struct SurveySidecar {
  std::string SurveyDigest;  ///< SHA-256 of the survey
  bool Transect = false;     ///< the last column is the row number
  bool SecondSignal = false;
  std::array<std::string, 2> Labels;
  std::string Units;  ///< as the logger's file tells them; "mS/m" and "dS/m" are those that a run knows
  CoordinateSystem Crs;
  std::vector<Polygon> Boundary, Exclusions;  ///< in the survey's coordinates
};

/// The path of the sidecar of a survey: its name without the last extension, and `.survey.json`.
std::filesystem::path SidecarPath(const std::filesystem::path& survey);

/// The content of a sidecar. Throws Refusal with the key at fault for what is none, or of a newer schema.
SurveySidecar ReadSidecar(std::string_view content);

/// The sidecar of a conversion whose survey has this digest.
std::string ComposeSidecar(const Conversion& conversion, const std::string& surveyDigest);

/// The report of a conversion as a JSON document; `files` are those written.
std::string ComposeConversionJson(const Conversion& conversion,
                                  const std::vector<std::filesystem::path>& files);

}  // namespace veln
