#pragma once

#include "desktop/program/program.h"
#include "desktop/workspace/frm_main.h"
#include "support/testing.h"

#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSettings>
#include <QTest>
#include <QtWidgets>

#include <memory>
#include <stdexcept>

namespace veln {

/// Lets events run that wait, deletions among them.
inline void Settle()
{
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Answers every question with `Always`, if it has one, otherwise as scripted.
class DeskDialogs : public ScriptedDialogs {
 public:
  std::optional<bool> Always;

  bool Ask(Question question, const std::string& text) override
  {
    if (!Always) {
      return ScriptedDialogs::Ask(question, text);
    }
    Said.push_back("ask: " + text);
    return *Always;
  }
};

/// Holds the timers of windows still: they tick when a test lets them.
class HandTimers : public QObject {
 public:
  HandTimers() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* object, QEvent* event) override
  {
    return event->type() == QEvent::Timer && object->objectName() == "Timer1";
  }

  /// Lets the timer of an open window tick, as often as it still runs.
  static void Tick(const QWidget& window, int times = 1)
  {
    auto* timer = window.findChild<QTimer*>("Timer1");
    for (int i = 0; i < times && timer != nullptr && timer->isActive(); ++i) {
      QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    }
  }
};

/// A program without a main window: its directory has `data/demo` and an empty `helpdocs`, dialogs are
/// answered from a script, the date stands still, and ending the program is only counted.
class DesktopTest : public testing::Test {
 protected:
  DesktopTest()
  {
    std::filesystem::create_directories(Directory / "data" / "demo");
    std::filesystem::create_directories(Directory / "helpdocs");
    Shared.State.ProgramDir = Directory.Path();
    Shared.State.TextEditorPath = " write";
    Shared.State.InputFilePath = Directory.Path().string();
    Shared.Quit = [this] { ++Ended; };
  }

  void TearDown() override { CloseWindows(); }

  static void CloseWindows()
  {
    std::vector<QPointer<QWidget>> windows;  // a window takes its menus with it
    for (QWidget* window : QApplication::topLevelWidgets()) {
      windows.emplace_back(window);
    }
    for (const QPointer<QWidget>& window : windows) {
      if (window && window->parent() == nullptr && window->objectName() != "frmMain") {
        delete window;
      }
    }
    Settle();
  }

  /// Replaces the record, as if the work had come that far. Program directory and settings stay.
  void Set(SurveyState state)
  {
    state.ProgramDir = Shared.State.ProgramDir;
    state.TextEditorPath = Shared.State.TextEditorPath;
    state.InputFilePath = Shared.State.InputFilePath;
    Shared.State = std::move(state);
    Shared.Changed();
  }

  /// The open window of that name, or null.
  static QWidget* Window(const char* name)
  {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == name && window->isVisible()) {
        return window;
      }
    }
    return nullptr;
  }

  /// The control of that name in an open window ("frmProject", "Command1"). Throws if there is none.
  template <class Widget = QWidget>
  static Widget& Control(const char* window, const char* name)
  {
    QWidget* parent = Window(window);
    auto* control = parent == nullptr ? nullptr : parent->findChild<Widget*>(name);
    if (control == nullptr) {
      throw std::runtime_error(std::string(window) + " shows no control of that kind named " + name);
    }
    return *control;
  }

  /// Clicks a control by the mouse. A hidden or disabled one is clicked in vain, as by a user.
  static void Click(const char* window, const char* name)
  {
    QWidget& control = Control(window, name);
    if (control.isVisible()) {
      // Check boxes and options answer at their mark, which stands at the left.
      constexpr int Inside = 10;
      QTest::mouseClick(&control, Qt::LeftButton, {}, {Inside, control.height() / 2});
    }
    Settle();
  }

  /// Puts a text into a line, key by key, in place of what it held.
  static void Type(const char* window, const char* name, const char* text)
  {
    auto& line = Control<QLineEdit>(window, name);
    line.setFocus();
    QTest::keyClick(&line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&line, Qt::Key_Backspace);
    QTest::keyClicks(&line, text);
  }

  /// The text of a label, a line or a button, without the "&" that marks a button's key.
  static std::string Text(const char* window, const char* name)
  {
    const QWidget& control = Control(window, name);
    const bool literal = dynamic_cast<const QLabel*>(&control) != nullptr ||
                         dynamic_cast<const QLineEdit*>(&control) != nullptr;
    const QString text =
        control.property(dynamic_cast<const QGroupBox*>(&control) != nullptr ? "title" : "text").toString();
    return (literal ? text : QString(text).remove('&')).toStdString();
  }

  /// Whether a control is to be seen, scrolled away or not.
  static bool Shown(const char* window, const char* name) { return Control(window, name).isVisible(); }

  /// Chooses an entry of a window's menus. False if it, or a menu above it, is disabled.
  static bool ChooseFrom(QAction& entry)
  {
    bool open = true;
    for (QAction* line = &entry; line != nullptr && open; line = Above(*line)) {
      open = line->isEnabled();
    }
    if (open) {
      entry.trigger();
    }
    Settle();
    return open;
  }

  HandTimers Timers;
  TemporaryDirectory Directory;
  DeskDialogs Asked;
  QSettings Places{QString::fromStdString((Directory / "places.ini").string()), QSettings::IniFormat};
  Program Shared{Asked, [] { return std::string("2026-11-22 14:05:09"); }, Places};
  int Ended = 0;  ///< how often the program was to end

 private:
  /// The submenu that an entry stands in, as an entry; null in the menu bar.
  static QAction* Above(const QAction& action)
  {
    for (QObject* object : action.associatedObjects()) {
      if (const auto* menu = dynamic_cast<QMenu*>(object);
          menu != nullptr && !menu->objectName().startsWith("qt_")) {
        return menu->menuAction();
      }
    }
    return nullptr;
  }
};

/// The workflow step by which each entry of the main window opens.
inline const std::map<std::string, MenuEntry> Gates = {
    {"mnuProject", MenuEntry::mnuProject}, {"mnuImport", MenuEntry::mnuImport},
    {"mnuIGSF", MenuEntry::mnuImport},     {"mnuITSF", MenuEntry::mnuImport},
    {"mnuVPOF", MenuEntry::mnuVPOF},       {"mnuSG", MenuEntry::mnuSG},
    {"mnuStats", MenuEntry::mnuStats},     {"mnuSigD", MenuEntry::mnuSigD},
    {"mnuSigV", MenuEntry::mnuSigV},       {"mnuSRS", MenuEntry::mnuSRS},
    {"mnuMask", MenuEntry::mnuMask},       {"mnuSHowMap", MenuEntry::mnuSHowMap}};

/// A program with its main window open.
class MainWindowTest : public DesktopTest {
 protected:
  void SetUp() override
  {
    Main = std::make_unique<frmMain>(Shared);
    Main->show();
    Settle();
  }

  void TearDown() override
  {
    Main.reset();
    DesktopTest::TearDown();
  }

  /// An entry or a submenu of the main window. Throws if there is none of that name.
  QAction& Entry(const char* name)
  {
    auto* action = Main->findChild<QAction*>(name);
    if (action == nullptr) {
      throw std::runtime_error(std::string("no entry ") + name);
    }
    return *action;
  }

  /// Chooses an entry of the main window. False if it can't be chosen.
  bool Choose(const char* name) { return ChooseFrom(Entry(name)); }

  std::unique_ptr<frmMain> Main;
};

}  // namespace veln
