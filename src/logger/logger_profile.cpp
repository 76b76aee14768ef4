#include "logger/logger_profile.h"

#include "logger/option_rules.h"
#include "toolkit/file_store.h"
#include "toolkit/refusal.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <system_error>

namespace veln {

namespace {

using Json = nlohmann::ordered_json;

constexpr int Schema = 1;

}  // namespace

bool IsProfileName(std::string_view name)
{
  return !name.empty() && name.front() != '.' && std::ranges::all_of(name, [](unsigned char c) {
    return std::isalnum(c) != 0 || c == '_' || c == '-' || c == '.';
  });
}

std::filesystem::path ProfilePath(const std::string& name)
{
  const char* const configured = std::getenv("XDG_CONFIG_HOME");
  const char* const home = std::getenv("HOME");
  std::filesystem::path folder;
  if (configured != nullptr && configured[0] == '/') {
    folder = configured;
  } else if (home != nullptr && home[0] != '\0') {
    folder = std::filesystem::path(home) / ".config";
  } else {
    throw Refusal(
        "Profiles stand in the user's configuration folder, and neither HOME nor XDG_CONFIG_HOME tells it.");
  }
  return folder / "veln" / "loggers" / (name + ".json");
}

void ReadProfile(const std::string& name, ConversionOptions& options)
{
  const std::filesystem::path path = ProfilePath(name);
  std::error_code failure;
  if (!std::filesystem::exists(path, failure)) {
    throw Refusal("There is no profile \"" + name + "\"; --save-profile makes one. It would be " +
                  path.string() + ".");
  }
  const Json document = Json::parse(ReadFile(path), nullptr, false);
  const auto refuse = [&](const std::string& what) {
    throw Refusal("Profile \"" + name + "\", " + path.string() + ": " + what);
  };
  if (!document.is_object() || !document.contains("options") || !document["options"].is_object()) {
    refuse("it is no profile of a logger.");
  }
  if (document.value("schema", Json()) != Schema) {
    refuse("it was written by another version of the program.");
  }
  for (const auto& [option, value] : document["options"].items()) {
    if (!value.is_string()) {
      refuse("\"" + option + "\" is no text.");
    }
    try {
      ReadOption(options, option, value.get<std::string>());
    } catch (const Refusal& refusal) {
      refuse(refusal.Message());
    }
  }
  options.Reading.Columns.Profile = name;
}

std::string ComposeProfile(const ConversionOptions& options)
{
  constexpr int Indent = 2;
  Json choices = Json::object();
  for (const OptionRule& rule : OptionRules()) {
    const auto value = rule.Profiled ? rule.Write(options) : std::nullopt;
    if (value) {
      choices[rule.Name] = *value;
    }
  }
  const Json document = {{"schema", Schema}, {"kind", "logger profile"}, {"options", choices}};
  return document.dump(Indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace veln
