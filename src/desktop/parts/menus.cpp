#include "desktop/parts/menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <map>
#include <string>

namespace veln {

void Menus::Fill(QMenuBar& bar, const std::vector<MenuLine>& lines)
{
  std::map<std::string, QMenu*> menus;
  for (const MenuLine& line : lines) {
    QMenu* above = line.Menu == nullptr ? nullptr : menus.at(line.Menu);
    if (*line.Name == '\0') {
      above->addSeparator();
      continue;
    }
    QAction* action = nullptr;
    if (line.Action) {
      action = above->addAction(line.Caption);
      action->setShortcut(QKeySequence(line.Shortcut));
      action->setCheckable(static_cast<bool>(line.On));
      QObject::connect(action, &QAction::triggered, &bar, line.Action);
    } else {
      QMenu* menu = above == nullptr ? bar.addMenu(line.Caption) : above->addMenu(line.Caption);
      menus[line.Name] = menu;
      action = menu->menuAction();
    }
    action->setObjectName(line.Name);
    entries_.push_back({action, line.Open, line.On});
  }
}

void Menus::Mirror() const
{
  for (const Entry& entry : entries_) {
    if (entry.Open) {
      entry.Action->setEnabled(entry.Open());
    }
    if (entry.On) {
      entry.Action->setChecked(entry.On());
    }
  }
}

}  // namespace veln
