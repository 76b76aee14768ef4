#pragma once

#include "logger/conversion.h"
#include "toolkit/file_store.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace veln {

/// The raw survey as text: x, y, signals and, on a survey with rows, the row; comma-separated, lines end in
/// LF.
std::string SurveyText(const Conversion& conversion);

/// Where each site comes from: its number, file, first and last line, readings joined, latitude, longitude,
/// time, ID.
std::string SourcesText(const Conversion& conversion);

/// The dropped records whole, each with its file, line and reason; reads the files once more. Those that
/// `--every` left out are not among them. Throws Refusal if a file is not what it was.
std::string DroppedText(const Conversion& conversion);

/// The path of the sources file of a survey: its name without the last extension, and `.sources.csv`.
std::filesystem::path SourcesPath(const std::filesystem::path& survey);

/// All files of a conversion: the survey, its sidecar, its sources and, where asked for, the dropped records.
/// They belong together and are to be put in place together.
std::vector<ComposedFile> ComposeConversionFiles(const Conversion& conversion,
                                                 const std::filesystem::path& survey,
                                                 const std::optional<std::filesystem::path>& dropped);

}  // namespace veln
