#include "desktop/program/application.h"

#include "desktop/program/program.h"

#include <QWidget>

#include <cstdio>
#include <cstdlib>

namespace veln {

namespace {

/// What the toolkit says while it looks for a display is for its developers; where it finds none it would
/// abort.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& /*place*/, const QString& /*message*/)
{
  if (type == QtFatalMsg) {
    std::fputs("VELN-QTRD needs a display, and none can be reached: see the variable DISPLAY.\n", stderr);
    std::_Exit(1);
  }
}

/// Installs the handler above while the application starts.
class DisplayWatch {
 public:
  explicit DisplayWatch(int& argc) : argc_(argc), before_(qInstallMessageHandler(EndWithoutDisplay)) {}
  DisplayWatch(const DisplayWatch&) = delete;
  DisplayWatch& operator=(const DisplayWatch&) = delete;
  ~DisplayWatch() { qInstallMessageHandler(before_); }

  /// What the application takes of the command line.
  [[nodiscard]] int& ArgumentCount() const { return argc_; }

 private:
  int& argc_;
  QtMessageHandler before_;
};

}  // namespace

Application::Application(int& argc, char** argv) : QApplication(DisplayWatch(argc).ArgumentCount(), argv) {}

bool Application::notify(QObject* receiver, QEvent* event)
{
  bool handled = false;
  const auto deliver = [&] { handled = QApplication::notify(receiver, event); };
  if (program_ == nullptr) {
    deliver();
  } else {
    program_->Tell(deliver);
  }
  return handled;
}

}  // namespace veln
