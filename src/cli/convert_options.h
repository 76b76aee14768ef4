#pragma once

#include "logger/conversion_options.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// What `veln convert` was asked to do.
struct ConvertOptions {
  std::vector<std::filesystem::path> Files;
  std::filesystem::path Survey;  ///< empty with `Show`
  std::optional<std::filesystem::path> Dropped;
  std::optional<std::string> SaveProfile;
  ConversionOptions Conversion;
  bool Show = false;
  bool Json = false;
  bool Quiet = false;
};

/// The arguments behind `veln convert`, read: a conversion, or a text to print (help).
struct ConvertCommandLine {
  std::optional<ConvertOptions> Convert;
  std::string Text;
};

/// Reads the arguments behind `veln convert`. Throws Refusal (usage) for what is wrong whatever the files
/// hold; nothing is written. Of the file system only a profile is read, and asked which names stand for one
/// file.
ConvertCommandLine ReadConvertCommandLine(const std::vector<std::string>& arguments);

}  // namespace veln
