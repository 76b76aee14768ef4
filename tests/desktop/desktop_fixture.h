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

  void TearDown() override
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

  /// Chooses an entry of a window's menus by the mouse. False if it, or a menu above it, is disabled.
  static bool ChooseFrom(QMenuBar& bar, QAction& entry)
  {
    const bool open = OpenMenuOf(bar, entry) && entry.isEnabled();
    if (open) {
      QMenu* menu = MenuOf(entry);
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&entry).center());
    }
    while (QWidget* popup = QApplication::activePopupWidget()) {
      popup->close();
    }
    Settle();
    return open;
  }

  TemporaryDirectory Directory;
  ScriptedDialogs Asked;
  QSettings Places{QString::fromStdString((Directory / "places.ini").string()), QSettings::IniFormat};
  Program Shared{Asked, [] { return std::string("2026-11-22 14:05:09"); }, Places};
  int Ended = 0;  ///< how often the program was to end

 private:
  /// The menu that an entry stands in; null for one of the menu bar, which also stands in the bar's own
  /// overflow menu.
  static QMenu* MenuOf(const QAction& action)
  {
    QMenu* menu = nullptr;
    for (QObject* object : action.associatedObjects()) {
      if (dynamic_cast<QMenuBar*>(object) != nullptr) {
        return nullptr;
      }
      menu = dynamic_cast<QMenu*>(object);
    }
    return menu;
  }

  static bool OpenMenuOf(QMenuBar& bar, QAction& action)
  {
    QMenu* menu = MenuOf(action);
    if (menu == nullptr) {
      return false;
    }
    QAction* opener = menu->menuAction();
    if (MenuOf(*opener) == nullptr) {
      QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(opener).center());
    } else {
      if (!OpenMenuOf(bar, *opener) || !opener->isEnabled()) {
        return false;
      }
      QMenu* above = MenuOf(*opener);
      QTest::mouseClick(above, Qt::LeftButton, {}, above->actionGeometry(opener).center());
    }
    // Submenus open after a moment.
    return QTest::qWaitFor([menu] { return menu->isVisible(); }, 1000);
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

  /// Chooses an entry of the main window by the mouse. False if it can't be chosen.
  bool Choose(const char* name) { return ChooseFrom(*Main->menuBar(), Entry(name)); }

  std::unique_ptr<frmMain> Main;
};

}  // namespace veln
