#include "cli/convert_options.h"

#include "cli/option_text.h"
#include "logger/conversion_files.h"
#include "logger/logger_profile.h"
#include "logger/option_rules.h"
#include "logger/survey_sidecar.h"
#include "toolkit/refusal.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <system_error>
#include <utility>

namespace veln {

namespace {

namespace fs = std::filesystem;

/// The options as they stand on the command line, before any rule.
struct RawOptions {
  std::vector<std::string> Files, Boundaries, Exclusions;
  std::optional<std::string> Output, Dropped, Profile, SaveProfile;
  std::vector<std::optional<std::string>> Values;  ///< by `OptionRules`
  bool Show = false, Json = false, Quiet = false;
};

[[noreturn]] void RefuseUsage(const std::string& message)
{
  throw Refusal(message, RefusalKind::Usage);
}

void AddList(CLI::App& app, const char* name, std::vector<std::string>& values, const char* valueName,
             const char* help)
{
  app.add_option(name, values, help)
      ->type_name(valueName)
      ->expected(1)
      ->allow_extra_args(false)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

template <class Value>
void AddValue(CLI::App& app, const std::string& name, Value& value, const char* valueName, const char* help)
{
  app.add_option(name, value, help)->type_name(valueName)->allow_extra_args(false);
}

void AddOptions(CLI::App& app, RawOptions& raw)
{
  app.add_option("files", raw.Files, "Files as they came from the logger; several are one survey")
      ->type_name("FILE...")
      ->required();
  AddValue(app, "-o,--output", raw.Output, "SURVEY",
           "The raw survey to write; NAME.survey.json and NAME.sources.csv come beside it");
  app.add_flag("--show", raw.Show, "Tell what was recognised and what would happen; write nothing");
  AddValue(app, "--dropped", raw.Dropped, "FILE.csv", "Write the dropped records with their reasons, too");
  AddValue(app, "--profile", raw.Profile, "NAME", "Take the choices that --save-profile kept");
  AddValue(app, "--save-profile", raw.SaveProfile, "NAME",
           "Keep the choices for the next file of this logger");
  raw.Values.resize(OptionRules().size());
  for (std::size_t i = 0; i < raw.Values.size(); ++i) {
    const OptionRule& rule = OptionRules()[i];
    AddValue(app, std::string("--") + rule.Name, raw.Values[i], rule.Value, rule.Help);
  }
  AddList(app, "--boundary", raw.Boundaries, "FILE",
          "Drop sites outside these areas (GeoJSON, KML); repeatable");
  AddList(app, "--exclude", raw.Exclusions, "FILE", "Drop sites in these areas (GeoJSON, KML); repeatable");
  app.add_flag("--json", raw.Json, "The report as a JSON document on standard output");
  app.add_flag("--quiet", raw.Quiet, "Nothing on standard output");
}

/// Whether two paths name one file, also where it does not exist yet.
bool IsSameFile(const fs::path& a, const fs::path& b)
{
  std::error_code failure;
  return fs::weakly_canonical(a, failure) == fs::weakly_canonical(b, failure) ||
         fs::equivalent(a, b, failure);
}

/// A file that is to be written: a name that stands for a file or for nothing yet.
void RequireWritable(const std::string& option, const std::string& text)
{
  RequirePath(option, text);
  std::error_code failure;
  const fs::file_type type = fs::status(text, failure).type();
  if (text.empty() || text == "-") {
    RefuseUsage(option + ": the files of a conversion belong together; name a file.");
  }
  if (type != fs::file_type::not_found && type != fs::file_type::regular) {
    RefuseUsage(option + ": \"" + text + "\" is a directory or a device; name a file.");
  }
}

/// No file is written over an input, and none over another.
void RequireApart(const ConvertOptions& options)
{
  std::vector<fs::path> inputs = options.Files;
  for (const auto* more : {&options.Conversion.Boundaries, &options.Conversion.Exclusions}) {
    inputs.insert(inputs.end(), more->begin(), more->end());
  }
  std::vector<fs::path> outputs = {options.Survey, SidecarPath(options.Survey), SourcesPath(options.Survey)};
  if (options.Dropped) {
    outputs.push_back(*options.Dropped);
  }
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    for (const fs::path& input : inputs) {
      if (IsSameFile(outputs[i], input)) {
        RefuseUsage(outputs[i].string() + " is an input of this conversion; name another output.");
      }
    }
    for (std::size_t k = 0; k < i; ++k) {
      if (IsSameFile(outputs[i], outputs[k])) {
        RefuseUsage(outputs[i].string() + " would be written twice; name another file.");
      }
    }
  }
}

void ReadOutputs(const RawOptions& raw, ConvertOptions& options)
{
  if (!raw.Show && !raw.Output) {
    RefuseUsage("--output: name the survey to write, or look first with --show.");
  }
  if (raw.Output) {
    RequireWritable("--output", *raw.Output);
    if (raw.Output->ends_with(".survey.json") || raw.Output->ends_with(".sources.csv")) {
      RefuseUsage("--output: \"" + *raw.Output + "\" is a name of the files that come beside a survey.");
    }
    options.Survey = *raw.Output;
  }
  if (raw.Dropped) {
    RequireWritable("--dropped", *raw.Dropped);
    options.Dropped = *raw.Dropped;
  }
  if (raw.SaveProfile && !IsProfileName(*raw.SaveProfile)) {
    RefuseUsage("--save-profile: \"" + *raw.SaveProfile +
                R"(" is no name of letters, digits, "_", "-" and ".".)");
  }
  options.SaveProfile = raw.SaveProfile;
  if (!raw.Show) {
    RequireApart(options);
  }
  // A pipe can be read once only, and the dropped records are read again.
  for (const fs::path& file : options.Files) {
    std::error_code failure;
    const fs::file_type type = fs::status(file, failure).type();
    const bool again = type == fs::file_type::regular || type == fs::file_type::directory ||
                       type == fs::file_type::not_found || type == fs::file_type::none;
    if (options.Dropped && !again) {
      RefuseUsage("--dropped reads the files twice, which " + file.string() +
                  ", no file on disk, does not allow.");
    }
  }
}

/// Columns that the command line names take the place of a profile's of the other kind.
void GiveWay(const RawOptions& raw, ConversionOptions& options)
{
  const auto told = [&raw](const std::string& name) {
    for (std::size_t i = 0; i < raw.Values.size(); ++i) {
      if (name == OptionRules()[i].Name) {
        return raw.Values[i].has_value();
      }
    }
    return false;
  };
  ColumnChoices& columns = options.Reading.Columns;
  if (told("x") || told("y")) {
    columns.Lat.reset();
    columns.Lon.reset();
  }
  if (told("lat") || told("lon")) {
    columns.X.reset();
    columns.Y.reset();
  }
  if (told("s1")) {
    columns.S2.reset();
  }
  if (told("rows")) {
    columns.Row.reset();
  }
}

void ReadConversion(const RawOptions& raw, ConversionOptions& options)
{
  if (raw.Profile) {
    if (!IsProfileName(*raw.Profile)) {
      RefuseUsage("--profile: \"" + *raw.Profile + "\" is no name of a profile.");
    }
    ReadProfile(*raw.Profile, options);
    GiveWay(raw, options);
  }
  for (std::size_t i = 0; i < raw.Values.size(); ++i) {
    if (const auto& value = raw.Values[i]) {
      RequirePath(std::string("--") + OptionRules()[i].Name, *value);
      ReadOption(options, OptionRules()[i].Name, *value);
    }
  }
  options.Boundaries.assign(raw.Boundaries.begin(), raw.Boundaries.end());
  options.Exclusions.assign(raw.Exclusions.begin(), raw.Exclusions.end());
  RequireConsistent(options);
}

}  // namespace

ConvertCommandLine ReadConvertCommandLine(const std::vector<std::string>& arguments)
{
  RawOptions raw;
  CLI::App app("Takes a logger's own file to a raw survey, with every line accounted for.", "veln convert");
  AddOptions(app, raw);
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
  } catch (const CLI::CallForHelp&) {
    return {std::nullopt, app.help()};
  } catch (const CLI::ParseError& error) {
    RefuseUsage(std::string(error.what()) + "\nSee veln convert --help for the options.");
  }
  ConvertOptions options;
  for (const std::string& file : raw.Files) {
    RequirePath("FILE", file);
    options.Files.emplace_back(file);
  }
  ReadConversion(raw, options.Conversion);
  options.Show = raw.Show;
  options.Json = raw.Json;
  options.Quiet = raw.Quiet;
  ReadOutputs(raw, options);
  return {options, ""};
}

}  // namespace veln
