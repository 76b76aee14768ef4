#include "cli/convert_command.h"

#include "cli/progress_text.h"
#include "logger/conversion_files.h"
#include "logger/conversion_report.h"
#include "logger/logger_profile.h"
#include "logger/survey_sidecar.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <ostream>
#include <system_error>

namespace veln {

namespace {

/// The file of a profile to keep, with the folders above it made.
ComposedFile ProfileFile(const std::string& name, const ConversionOptions& options)
{
  const std::filesystem::path path = ProfilePath(name);
  std::error_code failure;
  std::filesystem::create_directories(path.parent_path(), failure);
  if (failure) {
    throw Refusal(path.parent_path().string() + "\ncould not be made: " + failure.message());
  }
  return {path, ComposeProfile(options)};
}

/// Whole paths of what was written.
std::vector<std::filesystem::path> WriteAll(const ConvertOptions& options, const Conversion& conversion)
{
  std::vector<ComposedFile> files = ComposeConversionFiles(conversion, options.Survey, options.Dropped);
  if (options.SaveProfile) {
    files.push_back(ProfileFile(*options.SaveProfile, conversion.Options));
  }
  WriteFiles(files);
  std::vector<std::filesystem::path> paths;
  std::ranges::transform(files, std::back_inserter(paths), [](const ComposedFile& file) {
    return std::filesystem::absolute(file.Path).lexically_normal();
  });
  return paths;
}

}  // namespace

void RunConversion(const ConvertOptions& options, std::ostream& out)
{
  const Conversion conversion =
      Convert(ReadLoggerFiles(options.Files, options.Conversion.Reading), options.Conversion);
  std::vector<std::filesystem::path> files;
  if (!options.Show) {
    files = WriteAll(options, conversion);
  }
  if (options.Json) {
    out << ComposeConversionJson(conversion, files);
  } else if (!options.Quiet) {
    out << ConversionReport(conversion);
    ProgressText(&out, false).FileList(files);
  }
}

}  // namespace veln
