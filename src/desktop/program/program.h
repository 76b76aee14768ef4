#pragma once

#include "graphics/dither.h"
#include "toolkit/clock.h"
#include "toolkit/dialogs.h"
#include "toolkit/file_lock.h"
#include "workspace/survey_state.h"

#include <QPointer>
#include <QSettings>
#include <QString>

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <vector>

class QPrinter;
class QWidget;

namespace veln {

class ChildWindow;

/// What the windows share: the one survey record, the services that the engine asks for, and the windows that
/// are open. Lives as long as the program.
class Program {
 public:
  /// Lets the user choose a printer; false when the user cancels.
  using PrinterChooser = std::function<bool(QPrinter& printer, QWidget* parent)>;

  /// Lets the user choose a file to save to: title, the path offered, and a filter as in "CSV files (*.csv)".
  using FileSaver = std::function<std::optional<std::filesystem::path>(
      const QString& title, const std::filesystem::path& offered, const QString& filter)>;

  /// `settings` keeps the places and sizes of windows, and nothing else.
  Program(Dialogs& dialogs, Clock clock, QSettings& settings);

  SurveyState State;
  FileLock Field;                ///< of the field that the program works on
  DitherGenerator Dither;        ///< of the dither plots: one for a run of the program
  FileSaver ChooseFile;          ///< the platform's save dialog, unless replaced
  PrinterChooser ChoosePrinter;  ///< the platform's print dialog, unless replaced
  std::function<void()> Quit;    ///< leaves the event loop, unless replaced

  Dialogs& Ask() { return dialogs_; }
  [[nodiscard]] const Clock& Now() const { return clock_; }
  QSettings& Settings() { return settings_; }

  /// The window that the others belong to.
  void SetMainWindow(QWidget* window) { mainWindow_ = window; }
  [[nodiscard]] QWidget* MainWindow() const { return mainWindow_; }

  /// Runs an action of a window. What stops it is shown here, the one place where it is; false then. A
  /// refusal has changed nothing; what else stops it, such as too little memory, leaves the record as it was.
  bool Try(const std::function<void()>& action);
  /// The same for what is no action of its own: the record is left as it stands.
  bool Tell(const std::function<void()>& work);

  /// Ends the program at once, all windows with it and without a question.
  void EndProgram();

  /// Tells all windows that the record has changed. Windows whose menu entry is closed by now are unloaded.
  void Changed();
  /// Has `listener` called at each change for as long as `owner` lives.
  void OnChange(QObject* owner, std::function<void()> listener);

  /// Brings a window up: the one that is open, or a new one, loaded afresh. Null if its loading was refused
  /// or if it did not want to stay open.
  template <class Window>
  Window* Show();
  /// Brings up a window that `make` makes for the main window, in place of one of its class that is open.
  template <class Window, class Make>
  Window* ShowWith(Make make);
  /// The window of that class if it is open, or null.
  template <class Window>
  [[nodiscard]] Window* Find() const
  {
    return dynamic_cast<Window*>(FindWindow(Window::Name));
  }
  /// Unloads the windows of these classes that are open.
  template <class... Windows>
  void CloseAll()
  {
    (Close(Windows::Name), ...);
  }

 private:
  [[nodiscard]] ChildWindow* FindWindow(const char* name) const;
  void Open(const char* name, ChildWindow* window);
  void Close(const char* name);

  struct Listener {
    QPointer<QObject> Owner;
    std::function<void()> Call;
  };

  Dialogs& dialogs_;
  Clock clock_;
  QSettings& settings_;
  QPointer<QWidget> mainWindow_;
  std::map<QString, QPointer<ChildWindow>> windows_;
  std::vector<Listener> listeners_;
};

template <class Window>
Window* Program::Show()
{
  if (FindWindow(Window::Name) == nullptr) {
    Try([this] { Open(Window::Name, new Window(*this, mainWindow_)); });
  } else {
    Open(Window::Name, FindWindow(Window::Name));
  }
  return Find<Window>();
}

template <class Window, class Make>
Window* Program::ShowWith(Make make)
{
  Close(Window::Name);
  Try([this, &make] { Open(Window::Name, make(mainWindow_.data())); });
  return Find<Window>();
}

}  // namespace veln
