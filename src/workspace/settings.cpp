#include "workspace/settings.h"

#include "toolkit/file_store.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/text_report.h"

#include <algorithm>
#include <string_view>

namespace veln {

namespace {

#ifdef _WIN32
constexpr const char* DefaultTextEditor = "c:\\Windows\\write.exe ";
#else
constexpr const char* DefaultTextEditor = "xdg-open ";
#endif
constexpr double DefaultDpiFactor = 2;

std::filesystem::path SettingsPath(const SurveyState& state)
{
  return state.ProgramDir / "VELN_te_fio_info.dat";
}

/// Takes the next line off `rest`, without its end (CR LF, LF or CR). Throws Refusal at the end of the file.
std::string_view TakeLine(std::string_view& rest)
{
  if (rest.empty()) {
    throw Refusal("The file ends too early.");
  }
  const std::size_t length = std::min(rest.find_first_of("\r\n"), rest.size());
  const std::string_view line = rest.substr(0, length);
  const bool pair = rest.substr(length, 2) == "\r\n";
  rest.remove_prefix(std::min(length + (pair ? 2 : 1), rest.size()));
  return line;
}

/// Takes a line's first item: what stands between its leading blanks and a comma. The rest of the line is
/// skipped.
std::string TakeItem(std::string_view& rest)
{
  const std::string_view line = TakeLine(rest);
  const std::size_t first = std::min(line.find_first_not_of(' '), line.size());
  return std::string(line.substr(first, line.find(',', first) - first));
}

double TakeNumber(std::string_view& rest)
{
  std::string item = TakeItem(rest);
  item.erase(item.find_last_not_of(' ') + 1);
  const auto number = ParseNumber(item);
  if (!number) {
    throw Refusal("The printer factor is not a number.");
  }
  return *number;
}

}  // namespace

void ReadTEandFIOinfo(SurveyState& state, Dialogs& dialogs)
{
  try {
    const std::string content = ReadFile(SettingsPath(state));
    std::string_view rest = content;
    TakeLine(rest);
    const std::string editor = " " + TakeItem(rest);
    TakeLine(rest);
    const std::string inputPath = TakeItem(rest);
    TakeLine(rest);
    state.PrinterDpiFactor = TakeNumber(rest);
    state.TextEditorPath = editor;
    state.InputFilePath = inputPath;
  } catch (const Refusal&) {
    dialogs.Warn("Warning! TE_FIO read error! Standard default settings employed...");
    state.TextEditorPath = DefaultTextEditor;
    state.InputFilePath = state.ProgramDir.string();
    state.PrinterDpiFactor = DefaultDpiFactor;
  }
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
