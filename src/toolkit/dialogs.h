#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// The title of every message box that does not name its own.
inline constexpr const char* ProgramTitle = "VELN-QTRD";

/// One entry of a file dialog's filter: what the user reads and the pattern, as in ("all files", "*.*").
struct FileFilter {
  std::string Text;
  std::string Pattern;
};

/// What a file dialog is to offer.
struct FileQuestion {
  std::string DialogTitle;
  std::vector<FileFilter> Filter;
  std::filesystem::path InitDir;
  std::string FileName;
  bool MustExist = true;
};

/// The questions that are answered Yes or No, by name: who answers need not know their words.
enum class Question {
  UseFieldAgain,        ///< a field ID that has files already
  WriteTransitionFile,  ///< the file of transition values as well
  ScoreDesigns,         ///< so many designs at one go
  TranslateForGood,     ///< coordinates in place of those that were measured
  ReplaceFile,          ///< a file that stands under the name chosen
  Exit,
  ExitWithoutDesigns
};

/// Whether Yes gives something up: files, coordinates, or the work of this session.
constexpr bool YesLoses(Question question)
{
  return question != Question::WriteTransitionFile && question != Question::ScoreDesigns;
}

/// All that the engine may ask of a person or of the desktop. The window program shows boxes, the command
/// line prints or answers from its options, tests answer from a script and read what was said.
class Dialogs {
 public:
  Dialogs() = default;
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;
  virtual ~Dialogs() = default;

  /// A message box with an OK button; lines are separated by line feeds. Returns when it was answered.
  virtual void Inform(const std::string& text) = 0;
  /// The same for a failure after which the work goes on: the command line tells it as an error.
  virtual void Warn(const std::string& text) = 0;
  /// A message box with the buttons Yes and No; true for Yes.
  virtual bool Ask(Question question, const std::string& text) = 0;
  /// One system sound.
  virtual void Beep() = 0;
  /// A file-open dialog. Empty when the user cancels or the dialog fails.
  virtual std::optional<std::filesystem::path> ShowOpen(const FileQuestion& question) = 0;
  /// Starts a program in a normal window without waiting for it: first the program, then its arguments.
  /// Throws Refusal with the system's text if it cannot be started.
  virtual void Shell(const std::vector<std::string>& command) = 0;
};

}  // namespace veln
