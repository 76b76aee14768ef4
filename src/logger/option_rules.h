#pragma once

#include "logger/conversion_options.h"

#include <optional>
#include <string>
#include <vector>

namespace veln {

/// One option of a conversion: its name, how it is read from text, and the text that reads as its present
/// value.
struct OptionRule {
  const char* Name;   ///< without dashes
  const char* Value;  ///< what its value is, for a help text: "METRES"
  const char* Help;
  bool Profiled;  ///< belongs to a logger rather than to a survey: profiles keep it
  /// Takes a value. False if the text is none.
  bool (*Read)(ConversionOptions& options, const std::string& text);
  /// The value; empty where it is the default.
  std::optional<std::string> (*Write)(const ConversionOptions& options);
};

/// All options of a conversion that have one value, in the order of a help text.
const std::vector<OptionRule>& OptionRules();

/// Reads one option. Throws Refusal (usage) for a name that is none and for a value that is none.
void ReadOption(ConversionOptions& options, const std::string& name, const std::string& text);

/// Rules between options. Throws Refusal (usage) for options that do not go together.
void RequireConsistent(const ConversionOptions& options);

}  // namespace veln
