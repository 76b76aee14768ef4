#include "workspace/settings.h"

#include "toolkit/file_store.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/text_lines.h"
#include "toolkit/text_report.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace veln {

namespace {

#ifdef _WIN32
constexpr const char* DefaultTextEditor = "c:\\Windows\\write.exe ";
#else
constexpr const char* DefaultTextEditor = "xdg-open ";
#endif

std::filesystem::path SettingsPath(const SurveyState& state)
{
  return state.ProgramDir / "VELN_te_fio_info.dat";
}

/// A value's line up to a comma, without its leading blanks.
std::string FirstItem(std::string_view line)
{
  const std::size_t first = std::min(line.find_first_not_of(' '), line.size());
  return std::string(line.substr(first, line.find(',', first) - first));
}

struct StartUpSettings {
  std::string TextEditor;
  std::string InputPath;
  double DpiFactor = 2;
};

/// The settings of a file of three captions, each with its value on the line behind; empty if it ends too
/// early or the printer factor is no number.
std::optional<StartUpSettings> ParseSettings(std::string_view rest)
{
  std::array<std::string_view, 6> lines;
  for (std::string_view& line : lines) {
    if (rest.empty()) {
      return std::nullopt;
    }
    line = TakeLine(rest);
  }
  std::string factor = FirstItem(lines[5]);
  factor.erase(factor.find_last_not_of(' ') + 1);
  const auto number = ParseNumber(factor);
  return number ? std::optional<StartUpSettings>({" " + FirstItem(lines[1]), FirstItem(lines[3]), *number})
                : std::nullopt;
}

std::optional<StartUpSettings> ReadSettings(const std::filesystem::path& path)
{
  try {
    return ParseSettings(ReadFile(path));
  } catch (const Refusal&) {
    return std::nullopt;  // without its reason: the defaults serve, whatever it is
  }
}

}  // namespace

void ReadTEandFIOinfo(SurveyState& state, Dialogs& dialogs)
{
  const auto settings = ReadSettings(SettingsPath(state));
  if (!settings) {
    dialogs.Warn("Warning! TE_FIO read error! Standard default settings employed...");
  }
  const auto& [editor, inputPath, factor] =
      settings.value_or(StartUpSettings{DefaultTextEditor, state.ProgramDir.string()});
  state.TextEditorPath = editor;
  state.InputFilePath = inputPath;
  state.PrinterDpiFactor = factor;
}

void SaveTEandFIOinfo(const SurveyState& state, Dialogs& dialogs)
{
  TextReport report;
  report.Line("VELN default Text Editor information:")
      .Line(state.TextEditorPath)
      .Line("VELN default raw survey Input File path information:")
      .Line(state.InputFilePath)
      .Line("Default printer DPI: (1=300, 2=600, 4=1200 dpi)")
      .Line(FormatNumber(state.PrinterDpiFactor, "0"));
  try {
    WriteFiles({{SettingsPath(state), report.Content()}});
  } catch (const Refusal& refusal) {
    dialogs.Beep();
    dialogs.Warn(refusal.Message());
    return;
  }
  dialogs.Inform("Your new VELN start-up information has been updated and saved.");
}

FileIoForm LoadFileIoForm(const SurveyState& state)
{
  FileIoForm form{state.TextEditorPath, state.InputFilePath, state.PrinterDpiFactor, state.TextEditorPath, 0};
  const int factor = RoundToInt16(state.PrinterDpiFactor).value_or(0);
  form.SelectedFactor = factor == 1 || factor == 2 || factor == 4 ? factor : 0;
  return form;
}

void BrowseTextEditor(FileIoForm& form, SurveyState& state, const std::optional<std::string>& chosen)
{
  if (chosen) {
    state.TextEditorPath = " " + *chosen;
  }
  form.TxtEditor = chosen ? state.TextEditorPath : form.TextEditorAtLoad;
}

void ChoosePrinterDpi(FileIoForm& form, SurveyState& state, int factor)
{
  state.PrinterDpiFactor = factor;
  form.SelectedFactor = factor;
}

void RestoreSettings(const FileIoForm& form, SurveyState& state, Dialogs& dialogs)
{
  state.TextEditorPath = form.TextEditorAtLoad;
  state.InputFilePath = form.InputPathAtLoad;
  state.PrinterDpiFactor = form.DpiFactorAtLoad;
  dialogs.Inform("The previous default Text Editor and Input file path information has been restored.");
}

}  // namespace veln
