#include "cli/run_options.h"

#include "cli/output_check.h"
#include "logger/sidecar_beside.h"
#include "toolkit/number_text.h"
#include "toolkit/output_target.h"
#include "toolkit/refusal.h"
#include "workspace/project.h"
#include "workspace/survey_state.h"
#include "workspace/version.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <system_error>
#include <utility>

namespace veln {

namespace {

/// The options as they stand on the command line, before any rule.
struct RawOptions {
  std::string SurveyFile;
  std::string Root = ".", Project = "demo", Field = "FLD1", Description;
  bool Overwrite = false;
  std::optional<std::string> Type;
  bool SiteId = false, SecondSignal = false, Log = false;
  std::optional<std::string> Label1, Label2;
  std::optional<std::string> Units;
  bool NoSidecar = false;
  std::optional<std::string> ConvertUnits;
  std::vector<std::string> Translations;
  std::string MaskingLevel = "3.50", OutlierLevel = "4.50", Rounds = "0";
  std::optional<std::string> EdgeBuffer, Reduction, Selection, Manual;
  bool Transition = false, TransitionFile = false;
  std::vector<std::string> Designs;
  std::vector<std::string> Pictures;
  std::string Palette = "1", SymbolSize = "4", Decimals = "2", Direction = "ew";
  bool NoHighlightSamples = false, NoHighlightMasked = false;
  bool NoExport = false, Json = false, Quiet = false;
};

/// An option takes its value as it stands: brackets, commas and a leading minus sign have no meaning of their
/// own.
template <class Value>
CLI::Option* AddValue(CLI::App& app, const char* name, Value& value, const char* valueName, const char* help)
{
  return app.add_option(name, value, help)->type_name(valueName)->allow_extra_args(false);
}

void AddRepeatable(CLI::App& app, const char* name, std::vector<std::string>& values, const char* valueName,
                   const char* help)
{
  app.add_option(name, values, help)
      ->type_name(valueName)
      ->expected(1)
      ->allow_extra_args(false)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void AddSurveyOptions(CLI::App& run, RawOptions& raw)
{
  AddValue(run, "survey_file", raw.SurveyFile, "SURVEY_FILE", "Raw survey file")->required();
  AddValue(run, "--root", raw.Root, "DIR",
           "Program directory; DIR/data/PROJECT is made when missing (default: .)");
  AddValue(run, "--project", raw.Project, "NAME", "Project (default: demo)");
  AddValue(run, "--field", raw.Field, "ID", "4-character field ID (default: FLD1)");
  AddValue(run, "--description", raw.Description, "TEXT", "Field description, up to 60 characters");
  run.add_flag("--overwrite", raw.Overwrite, "Go on although the field ID is in use");
  AddValue(run, "--type", raw.Type, "grid|transect", "Survey type (default: grid)");
  run.add_flag("--site-id", raw.SiteId, "The file has a site ID column");
  run.add_flag("--s2", raw.SecondSignal, "The file has a second signal column");
  AddValue(run, "--label1", raw.Label1, "TEXT", "Label of s1, up to 10 characters (default: EMv)");
  AddValue(run, "--label2", raw.Label2, "TEXT", "Label of s2, up to 10 characters (default: EMh)");
  AddValue(run, "--units", raw.Units, "mS/m|dS/m", "Units of the file's signals (default: mS/m)");
  run.add_flag("--no-sidecar", raw.NoSidecar,
               "Leave the .survey.json beside the file aside, which tells type, columns, labels and units");
  run.add_flag("--log", raw.Log, "Natural log transform at import");
  AddValue(run, "--convert-units", raw.ConvertUnits, "mS/m|dS/m", "Rescale the signals after import");
  AddRepeatable(run, "--translate", raw.Translations, "swap|rotate=DEG|reverse-x|reverse-y",
                "Coordinate translation after import; repeatable");
}

void AddAnalysisOptions(CLI::App& run, RawOptions& raw)
{
  AddValue(run, "--masking-level", raw.MaskingLevel, "V", "3.00 to 6.00 (default: 3.50)");
  AddValue(run, "--outlier-level", raw.OutlierLevel, "V", "3.00 to 6.00 (default: 4.50)");
  AddValue(run, "--delete-outliers", raw.Rounds, "N|all",
           "Delete-and-decorrelate rounds at most (default: 0)");
  AddValue(run, "--edge-buffer", raw.EdgeBuffer, "ends|rows", "Mask row ends; rows: first and last row too");
  run.add_flag("--transition", raw.Transition, "Transition analysis (transect only)");
  run.add_flag("--transition-file", raw.TransitionFile, "Write the transition values as well");
}

void AddDesignOptions(CLI::App& run, RawOptions& raw)
{
  AddValue(run, "--manual", raw.Manual, "ID,ID,...", "Save a manual design of these sites");
  AddValue(run, "--reduce", raw.Reduction, "50|67|75|80", "Survey reduction before the designs, in percent");
  AddValue(run, "--ads", raw.Selection, "limited|full[,ignore-ta]", "Score all D-factors and strata");
  AddRepeatable(
      run, "--design", raw.Designs, "SIZE[,d=V][,stratum=K][,ignore-ta][,no-support]",
      "Make and save a design of 6, 12 or 20 sites (5, 10 or 18 without support sites); repeatable, at "
      "most 5 (default: one of 12 when nothing else is asked for)");
  run.add_flag("--no-export", raw.NoExport, "Leave data.svy unwritten");
}

void AddPictureOptions(CLI::App& run, RawOptions& raw)
{
  AddRepeatable(
      run, "--plot", raw.Pictures, "KIND=FILE.svg",
      "Draw a picture at the end, as SVG; repeatable. KIND: grid, s1-x, s1-y, s2-x, s2-y, s1-s2, rsd, "
      "line-s1:ROW, line-s2:ROW, line-s1s2:ROW, hist-s1, hist-s2, hist-z1, hist-z2, hist-ta, map-s1, map-s2, "
      "map-z1, map-z2, map-ta, sites:N (design 1 to 5, 6 the manual one)");
  AddValue(run, "--palette", raw.Palette, "1..4", "Colours of the maps, 4 is grey (default: 1)");
  AddValue(run, "--symbol-size", raw.SymbolSize, "1..10", "Width of the maps' dots in pixels (default: 4)");
  AddValue(run, "--decimals", raw.Decimals, "2..5", "Decimal places of coordinates on axes (default: 2)");
  run.add_flag("--no-highlight-samples", raw.NoHighlightSamples, "Draw sample sites like all others");
  run.add_flag("--no-highlight-masked", raw.NoHighlightMasked,
               "Draw masked and outlier sites like all others");
  AddValue(run, "--direction", raw.Direction, "ns|ew", "Direction of the transect rows (default: ew)");
}

void AddOutputOptions(CLI::App& run, RawOptions& raw)
{
  run.add_flag("--json", raw.Json, "One JSON document on standard output");
  run.add_flag("--quiet", raw.Quiet, "Nothing on standard output");
}

[[noreturn]] void RefuseUsage(const std::string& message)
{
  throw Refusal(message, RefusalKind::Usage);
}

/// The place of a text among the choices.
std::size_t RequireOneOf(const std::string& option, const std::string& text,
                         const std::vector<std::string>& choices)
{
  if (const auto found = std::ranges::find(choices, text); found != choices.end()) {
    return static_cast<std::size_t>(found - choices.begin());
  }
  std::string list;
  for (const std::string& choice : choices) {
    list += (list.empty() ? "" : ", ") + choice;
  }
  RefuseUsage(option + ": \"" + text + "\" is not one of " + list + ".");
}

ConductivityUnits ReadUnits(const std::string& option, const std::string& text)
{
  RequireOneOf(option, text, {"mS/m", "dS/m"});
  return text == "dS/m" ? ConductivityUnits::DeciSiemens : ConductivityUnits::MilliSiemens;
}

std::filesystem::path AbsoluteRoot(const std::string& text)
{
  return AbsolutePath(text.empty() ? "." : text);
}

/// A project's name follows the rule for new names, or names a directory that stands under `data`.
void RequireProject(const std::filesystem::path& root, const std::string& name)
{
  std::error_code failure;
  const bool plain = !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos;
  if (IsProjectName(name) || (plain && std::filesystem::is_directory(root / "data" / name, failure))) {
    return;
  }
  RefuseUsage(
      "--project: \"" + name +
      "\" is not a project name.  It may hold digits, letters, \"_\" and \".\", or be that of a directory "
      "under data.");
}

void ReadIdentity(const RawOptions& raw, RunOptions& options)
{
  options.Root = AbsoluteRoot(raw.Root);
  RequirePath("--root", options.Root.string());
  RequirePath("--project", raw.Project);
  RequireProject(options.Root, raw.Project);
  if (!IsFieldId(raw.Field)) {
    RefuseUsage("--field: \"" + raw.Field + "\" is not a field ID of exactly 4 digits or letters.");
  }
  RequireText("--description", raw.Description, LongestDescription);
  options.Project = raw.Project;
  options.Field = raw.Field;
  options.Description = raw.Description;
  options.Overwrite = raw.Overwrite;
}

/// A label stands between double quotes in the survey's export.
void RequireLabel(const std::string& option, const std::string& text)
{
  RequireText(option, text, LongestLabel);
  if (text.find('"') != std::string::npos) {
    RefuseUsage(option + ": a double quote can not stand in a label.");
  }
}

void ReadImport(const RawOptions& raw, RunOptions& options)
{
  RequirePath("SURVEY_FILE", raw.SurveyFile);
  const std::string type = raw.Type.value_or("grid");
  RequireOneOf("--type", type, {"grid", "transect"});
  const ConductivityUnits units = ReadUnits("--units", raw.Units.value_or("mS/m"));
  const std::string label1 = raw.Label1.value_or(raw.Log ? "log(EMv)" : "EMv");
  const std::string label2 = raw.Label2.value_or(raw.Log ? "log(EMh)" : "EMh");
  RequireLabel("--label1", label1);
  RequireLabel("--label2", label2);
  options.Import = {
      raw.SurveyFile, {type == "transect", raw.SiteId, raw.SecondSignal}, {label1, label2}, units, raw.Log};
  if (raw.ConvertUnits) {
    options.ConvertUnits = ReadUnits("--convert-units", *raw.ConvertUnits);
    if (options.ConvertUnits == units) {
      RefuseUsage("--convert-units: the signals of the file are in " + *raw.ConvertUnits + " already.");
    }
  }
  for (const std::string& text : raw.Translations) {
    options.Translations.push_back(ReadTranslation("--translate", text));
  }
}

void ReadAnalysis(const RawOptions& raw, RunOptions& options)
{
  options.Levels.Masking = ReadHundredths("--masking-level", raw.MaskingLevel, LowestLevel, HighestLevel);
  options.Levels.Outlier = ReadHundredths("--outlier-level", raw.OutlierLevel, LowestLevel, HighestLevel);
  if (options.Levels.Masking > options.Levels.Outlier) {
    RefuseUsage("--masking-level: the masking level can not be higher than the outlier level.");
  }
  options.DeletionRounds = ReadRounds("--delete-outliers", raw.Rounds);
  if (raw.EdgeBuffer) {
    RequireOneOf("--edge-buffer", *raw.EdgeBuffer, {"ends", "rows"});
    options.EdgeBuffering = *raw.EdgeBuffer == "rows" ? BufferExtent::OuterRowsToo : BufferExtent::RowEnds;
  }
  options.TransitionAnalysis = raw.Transition;
  options.TransitionFile = raw.TransitionFile;
  if (!options.Import.Layout.Transect && (raw.EdgeBuffer || options.TransitionAnalysis)) {
    RefuseUsage("--edge-buffer and --transition need a transect survey (--type transect).");
  }
  if (options.TransitionFile && !options.TransitionAnalysis) {
    RefuseUsage("--transition-file: there are no transition values without --transition.");
  }
}

void ReadDesigns(const RawOptions& raw, RunOptions& options)
{
  for (const std::string& text : raw.Designs) {
    options.Designs.push_back(ReadDesign("--design", text));
  }
  if (options.Designs.size() > MaxDesigns) {
    RefuseUsage("--design: at most 5 designs can be made in a run.");
  }
  if (raw.Selection) {
    options.Selection = ReadSelection("--ads", *raw.Selection);
  }
  const bool designIgnores =
      std::ranges::any_of(options.Designs, [](const DesignOption& design) { return design.IgnoreTA; });
  if (!options.TransitionAnalysis && (designIgnores || (options.Selection && options.Selection->IgnoreTA))) {
    RefuseUsage("ignore-ta: there are no transition scores to ignore without --transition.");
  }
  if (raw.Manual) {
    options.ManualSites = ReadSiteNumbers("--manual", *raw.Manual);
  }
  if (raw.Reduction) {
    std::vector<std::string> shares;
    shares.reserve(ReductionSteps.size());
    for (const ReductionStep& step : ReductionSteps) {
      shares.push_back(GeneralForm(step.Percent));
    }
    options.Reduction = ReductionSteps.at(RequireOneOf("--reduce", *raw.Reduction, shares));
  }
  if (options.Designs.empty() && !raw.Selection && !raw.Manual) {
    options.Designs.emplace_back();
  }
}

void ReadPictureOptions(const RawOptions& raw, RunOptions& options)
{
  RequireOneOf("--direction", raw.Direction, {"ns", "ew"});
  options.Pictures = ReadPictures(raw.Pictures, {options.Import.Layout, options.TransitionAnalysis});
  options.PictureStyle.Choices = {
      ReadWholeNumber("--palette", raw.Palette, 1, PaletteCount),
      ReadWholeNumber("--decimals", raw.Decimals, FewestPlaces, MostPlaces),
      ReadWholeNumber("--symbol-size", raw.SymbolSize, SmallestSymbol, LargestSymbol)};
  options.PictureStyle.HighlightSamples = !raw.NoHighlightSamples;
  options.PictureStyle.HighlightMasked = !raw.NoHighlightMasked;
  options.PictureStyle.NorthSouth = raw.Direction == "ns";
}

RunOptions ApplyRules(const RawOptions& raw)
{
  RunOptions options;
  ReadIdentity(raw, options);
  ReadImport(raw, options);
  ReadAnalysis(raw, options);
  ReadDesigns(raw, options);
  ReadPictureOptions(raw, options);
  options.Export = !raw.NoExport;
  options.Json = raw.Json;
  options.Quiet = raw.Quiet;
  RefuseSharedOutputs(options);
  return options;
}

/// The options as the most permitting sidecar would have them: what is wrong then is wrong in any case.
RawOptions MostPermitted(RawOptions raw)
{
  raw.Type = raw.Type.value_or("transect");
  raw.SecondSignal = true;
  if (!raw.Units && raw.ConvertUnits) {
    raw.Units = *raw.ConvertUnits == "dS/m" ? "mS/m" : "dS/m";
  }
  return raw;
}

void RequireAgreement(const std::string& option, bool agrees, const std::string& told)
{
  if (!agrees) {
    RefuseUsage(option + ": the .survey.json beside the survey tells " + told +
                "; --no-sidecar leaves it aside.");
  }
}

/// Puts what a sidecar tells in the place of defaults. A label or unit that was told otherwise holds, with
/// advice.
void TakeSidecar(const SurveySidecar& sidecar, RawOptions& raw, std::vector<Advice>& advices)
{
  const std::string type = sidecar.Transect ? "transect" : "grid";
  RequireAgreement("--type", !raw.Type || *raw.Type == type, "a " + type + " survey");
  RequireAgreement("--site-id", !raw.SiteId, "that there is no site ID column");
  RequireAgreement("--s2", !raw.SecondSignal || sidecar.SecondSignal, "that there is one signal");
  raw.Type = type;
  raw.SecondSignal = sidecar.SecondSignal;
  const auto take = [&advices](const char* option, std::optional<std::string>& value,
                               const std::string& told) {
    if (value && *value != told) {
      advices.push_back({"sidecar-differs", std::string(option) + " tells \"" + *value +
                                                "\", the .survey.json beside the survey \"" + told + "\""});
    }
    value = value.value_or(told);
  };
  take("--label1", raw.Label1, sidecar.Labels[0]);
  if (sidecar.SecondSignal) {
    take("--label2", raw.Label2, sidecar.Labels[1]);
  }
  take("--units", raw.Units, sidecar.Units == "dS/m" ? "dS/m" : "mS/m");
}

/// The rules, with the sidecar beside the survey where there is one.
RunOptions ApplyRulesWithSidecar(RawOptions raw)
{
  if (raw.NoSidecar || !HasSidecar(raw.SurveyFile)) {
    return ApplyRules(raw);
  }
  ApplyRules(MostPermitted(raw));
  SidecarReading found = ReadSidecarOf(raw.SurveyFile);
  if (found.Sidecar) {
    TakeSidecar(*found.Sidecar, raw, found.Advices);
  }
  RunOptions options = ApplyRules(raw);
  options.Import.Content = std::move(found.Content);
  options.Advices = std::move(found.Advices);
  return options;
}

/// "--option=" has an empty value. The parser would take the argument behind it, so the value is written out.
std::vector<std::string> WriteOutEmptyValues(const CLI::App& run, const std::vector<std::string>& arguments)
{
  const auto takesValue = [&run](const std::string& name) {
    const CLI::Option* option = name.starts_with("--") ? run.get_option_no_throw(name) : nullptr;
    return option != nullptr && option->get_items_expected_min() > 0;
  };
  std::vector<std::string> words;
  bool isValue = false;
  for (const std::string& argument : arguments) {
    const std::string name = argument.substr(0, argument.find('='));
    const bool hasEmptyValue = !isValue && argument == name + "=" && takesValue(name);
    words.push_back(hasEmptyValue ? name : argument);
    if (hasEmptyValue) {
      words.emplace_back();
    }
    isValue = !isValue && takesValue(argument);
  }
  return words;
}

}  // namespace

CommandLine ReadCommandLine(const std::vector<std::string>& arguments)
{
  RawOptions raw;
  CLI::App app("Designs soil sampling plans from a ground-conductivity survey.", "veln");
  app.set_version_flag("--version", std::string("veln ") + ProgramVersion);
  app.require_subcommand(1);
  app.add_subcommand("convert", "Takes a logger's own file to a raw survey; see veln convert --help");
  CLI::App& run = *app.add_subcommand("run", "Takes a raw survey file to saved sample designs");
  AddSurveyOptions(run, raw);
  AddAnalysisOptions(run, raw);
  AddDesignOptions(run, raw);
  AddPictureOptions(run, raw);
  AddOutputOptions(run, raw);
  try {
    const std::vector<std::string> words = WriteOutEmptyValues(run, arguments);
    app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
  } catch (const CLI::CallForHelp&) {
    return {std::nullopt, app.help()};
  } catch (const CLI::CallForVersion& version) {
    return {std::nullopt, std::string(version.what()) + "\n"};
  } catch (const CLI::ParseError& error) {
    throw Refusal(std::string(error.what()) + "\nSee veln run --help for the options.", RefusalKind::Usage);
  }
  return {ApplyRulesWithSidecar(raw), ""};
}

}  // namespace veln
