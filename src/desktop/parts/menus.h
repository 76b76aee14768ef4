#pragma once

#include <QString>

#include <functional>
#include <utility>
#include <vector>

class QAction;
class QMenuBar;

namespace veln {

/// One line of a window's menus: a submenu, an entry, or a line between entries.
struct MenuLine {
  const char* Name;  ///< empty for a line between entries
  const char* Menu;  ///< the submenu that it stands in, which comes before it; null for the menu bar
  QString Caption = {};
  std::function<void()> Action = {};  ///< none for a submenu
  QString Shortcut = {};
  std::function<bool()> Open = {};  ///< whether it can be chosen; without one it always can
  std::function<bool()> On = {};    ///< of an entry that is switched on and off: whether it is on
};

/// The menus of a window.
class Menus {
 public:
  /// Fills the bar in the order of the lines.
  void Fill(QMenuBar& bar, const std::vector<MenuLine>& lines);
  /// Enables the lines that can be chosen now and ticks those that are on.
  void Mirror() const;

 private:
  struct Entry {
    QAction* Action;
    std::function<bool()> Open, On;
  };
  std::vector<Entry> entries_;
};

}  // namespace veln
