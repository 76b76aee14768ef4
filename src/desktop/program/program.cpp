#include "desktop/program/program.h"

#include "desktop/parts/controls.h"
#include "desktop/program/child_window.h"
#include "toolkit/refusal.h"

#include <QApplication>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>

#include <exception>
#include <new>
#include <utility>

namespace veln {

namespace {

std::optional<std::filesystem::path> AskForFile(const QString& title, const std::filesystem::path& offered,
                                                const QString& filter)
{
  const QString chosen =
      QFileDialog::getSaveFileName(QApplication::activeWindow(), title, ToQt(offered.string()), filter);
  return chosen.isEmpty() ? std::nullopt : std::optional(std::filesystem::path(FromQt(chosen)));
}

}  // namespace

Program::Program(Dialogs& dialogs, Clock clock, QSettings& settings)
    : ChooseFile(AskForFile),
      ChoosePrinter([](QPrinter& printer, QWidget* parent) {
        return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
      }),
      Quit([] { QApplication::exit(); }),  // quit() would ask the main window, which refuses to close
      dialogs_(dialogs),
      clock_(std::move(clock)),
      settings_(settings)
{
}

bool Program::Try(const std::function<void()>& action)
{
  return Tell([this, &action] {
    SurveyState before = State;
    try {
      action();
    } catch (const Refusal&) {
      throw;
    } catch (...) {
      State = std::move(before);
      Changed();
      throw;
    }
  });
}

bool Program::Tell(const std::function<void()>& work)
{
  try {
    work();
    return true;
  } catch (const Refusal& refusal) {
    dialogs_.Warn(refusal.Message());
  } catch (const std::bad_alloc&) {
    dialogs_.Warn("There is not enough memory for this.");
  } catch (const std::exception& failure) {
    dialogs_.Warn(std::string("This could not be done: ") + failure.what());
  }
  return false;
}

void Program::EndProgram()
{
  for (const auto& [name, window] : std::map(windows_)) {
    if (window != nullptr) {
      window->Unload();
    }
  }
  Field = FileLock();
  Quit();
}

void Program::Changed()
{
  for (const auto& [name, window] : std::map(windows_)) {
    const auto gate = window != nullptr ? window->Gate() : std::nullopt;
    if (gate && !State.Menu.IsEnabled(*gate)) {
      window->Unload();
    }
  }
  std::erase_if(listeners_, [](const Listener& listener) { return listener.Owner.isNull(); });
  for (const Listener& listener : std::vector(listeners_)) {
    if (listener.Owner != nullptr) {
      listener.Call();
    }
  }
}

void Program::OnChange(QObject* owner, std::function<void()> listener)
{
  listeners_.push_back({owner, std::move(listener)});
}

ChildWindow* Program::FindWindow(const char* name) const
{
  const auto found = windows_.find(name);
  const bool open = found != windows_.end() && found->second != nullptr && !found->second->Unloaded();
  return open ? found->second.data() : nullptr;
}

void Program::Close(const char* name)
{
  if (ChildWindow* window = FindWindow(name); window != nullptr) {
    window->Unload();
  }
}

void Program::Open(const char* name, ChildWindow* window)
{
  windows_[name] = window;
  window->BringUp();
}

}  // namespace veln
