#pragma once

#include "logger/conversion_options.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace veln {

/// A profile keeps the choices that belong to a logger, for its next file.

/// Whether a text can name a profile: letters, digits, "_", "-" and ".", not beginning with a point.
bool IsProfileName(std::string_view name);

/// The file of a profile under the user's configuration folder: `veln/loggers/NAME.json` under
/// XDG_CONFIG_HOME or
/// `.config` in the user's home.
std::filesystem::path ProfilePath(const std::string& name);

/// Puts the choices of a profile in force. Throws Refusal for a profile that is missing or damaged.
void ReadProfile(const std::string& name, ConversionOptions& options);

/// A profile's content.
std::string ComposeProfile(const ConversionOptions& options);

}  // namespace veln
