#include "desktop/shown.h"

#include "desktop/parts/text_roles.h"

#include <QTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace veln {

namespace {

using std::string;

string Quoted(const QString& text)
{
  return text.isEmpty() ? "" : "\"" + QString(text).replace('\n', "\\n").toStdString() + "\"";
}

/// A table with its cells, if they are not too many; "b" leads a bold one, "*" one with a ground of its own.
string TableText(const QTableWidget& table)
{
  constexpr int MostCells = 100;
  QStringList lines = {""};
  for (int column = 0; column < table.columnCount(); ++column) {
    lines.back() += table.horizontalHeaderItem(column)->text() + ", ";
  }
  const int rows = table.rowCount() * table.columnCount() > MostCells ? 0 : table.rowCount();
  for (int row = 0; row < rows; ++row) {
    const QTableWidgetItem* head = table.verticalHeaderItem(row);
    lines << (head == nullptr ? "" : head->text() + ": ");
    for (int column = 0; column < table.columnCount(); ++column) {
      const QTableWidgetItem* cell = table.item(row, column);
      if (cell != nullptr) {
        lines.back() += QString(cell->isSelected() ? "!" : "") + (cell->font().bold() ? "b" : "") +
                        (cell->background() == QBrush() ? "" : "*") + cell->text() + ", ";
      }
    }
  }
  return Quoted(lines.join("\n")) + " over " + std::to_string(table.rowCount()) + " rows";
}

/// The menu that an entry stands in.
string MenuOf(const QAction& action)
{
  for (const QObject* object : action.associatedObjects()) {
    if (const auto* menu = dynamic_cast<const QMenu*>(object); menu != nullptr) {
      return menu->menuAction()->objectName().toStdString();
    }
  }
  return "";
}

string TextOf(const QObject& object)
{
  if (const auto* list = dynamic_cast<const QListWidget*>(&object)) {
    QStringList items;
    for (int row = 0; row < list->count(); ++row) {
      items << (list->item(row)->isSelected() ? "*" : "") + list->item(row)->text();
    }
    return Quoted(items.join(", "));
  }
  if (const auto* table = dynamic_cast<const QTableWidget*>(&object)) {
    return TableText(*table);
  }
  if (dynamic_cast<const QComboBox*>(&object) != nullptr) {
    return "";  // the machine's volumes
  }
  for (const char* property : {"text", "title", "plainText", "format", "windowTitle"}) {
    const QVariant value = object.property(property);
    if (value.typeId() == QMetaType::QString) {
      return Quoted(value.toString());
    }
  }
  return "";
}

void AddWidget(Properties& shown, const QWidget& widget)
{
  const QWidget& window = *widget.window();
  const auto add = [&shown](const char* property, const string& value) {
    if (!value.empty()) {
      shown[property] = value;
    }
  };
  const auto flag = [&add](const char* property, bool on) { add(property, on ? "yes" : ""); };
  flag("hidden", !widget.isVisibleTo(&window) && !widget.isWindow());
  flag("closed", !widget.isEnabledTo(&window));
  flag("focus", window.focusWidget() == &widget);
  const QString caption = QString(widget.property("text").toString()).remove('&').trimmed();
  add("name", widget.accessibleName() == caption ? "" : Quoted(widget.accessibleName()));
  add("described", Quoted(widget.accessibleDescription()));
  if (widget.property("textRole").isValid()) {
    constexpr const char* Roles[] = {"normal", "chosen", "off", "warning", "caution", "maker"};
    string role = "none of the colours";
    for (int i = 0; i < 6; ++i) {
      const QColor colour = widget.palette().color(QPalette::Active, QPalette::WindowText);
      role = colour == RoleColour(static_cast<TextRole>(i), QApplication::palette()) ? Roles[i] : role;
    }
    add("role", role == "normal" ? "" : role);
  }
  if (const auto* button = dynamic_cast<const QAbstractButton*>(&widget)) {
    flag("on", button->isChecked());
    const auto* push = dynamic_cast<const QPushButton*>(&widget);
    flag("default", push != nullptr && push->isDefault());
  } else if (const auto* line = dynamic_cast<const QLineEdit*>(&widget)) {
    constexpr int AnyLength = 32767;
    flag("locked", line->isReadOnly());
    add("longest", line->maxLength() == AnyLength ? "" : std::to_string(line->maxLength()));
    const QColor base = line->palette().color(QPalette::Active, QPalette::Base);
    add("filled", base == QApplication::palette().color(QPalette::Base) || base.alpha() == 0
                      ? ""
                      : base.name().toStdString());
  } else if (const auto* bar = dynamic_cast<const QAbstractSlider*>(&widget)) {
    add("value", std::to_string(bar->value()) + " of " + std::to_string(bar->minimum()) + " to " +
                     std::to_string(bar->maximum()) + " by " + std::to_string(bar->singleStep()) + ", " +
                     std::to_string(bar->pageStep()));
  } else if (const auto* label = dynamic_cast<const QLabel*>(&widget)) {
    flag("rich", label->textFormat() != Qt::PlainText);
    add("for", label->buddy() == nullptr ? "" : label->buddy()->objectName().toStdString());
  }
}

void AddAction(Properties& shown, const QAction& action)
{
  shown["in"] = MenuOf(action);
  shown["key"] = action.shortcut().toString().toStdString();
  shown["on"] = action.isChecked() ? "yes" : "";
  shown["closed"] = action.isEnabled() ? "" : "yes";
}

/// The window that a control, or an entry of its menus, belongs to.
const QWidget* WindowOf(const QObject& object)
{
  const auto* widget = dynamic_cast<const QWidget*>(&object);
  if (widget != nullptr && dynamic_cast<const QMenu*>(widget) == nullptr) {
    return widget->window();
  }
  return object.parent() == nullptr ? nullptr : WindowOf(*object.parent());
}

bool Counts(const QObject& object, const QWidget& window)
{
  const bool kind =
      dynamic_cast<const QWidget*>(&object) != nullptr || dynamic_cast<const QAction*>(&object) != nullptr;
  return kind && !object.objectName().isEmpty() && !object.objectName().startsWith("qt_") &&
         dynamic_cast<const QMenu*>(&object) == nullptr && WindowOf(object) == &window;
}

/// Whether a layout, or one inside it, holds a widget.
bool Holds(const QLayout& layout, const QWidget& widget)
{
  for (int i = 0; i < layout.count(); ++i) {
    QLayoutItem* item = layout.itemAt(i);
    if (item->widget() == &widget || (item->layout() != nullptr && Holds(*item->layout(), widget))) {
      return true;
    }
  }
  return false;
}

}  // namespace

std::map<string, Properties> ShownBy(const QWidget& window)
{
  std::map<string, Properties> all;
  QObjectList objects = window.findChildren<QObject*>();
  objects.prepend(const_cast<QWidget*>(&window));
  for (const QObject* object : objects) {
    if (!Counts(*object, window)) {
      continue;
    }
    Properties shown;
    shown["text"] = object == &window ? Quoted(window.windowTitle()) : TextOf(*object);
    if (const auto* widget = dynamic_cast<const QWidget*>(object)) {
      shown["tip"] = Quoted(widget->toolTip());
      AddWidget(shown, *widget);
    } else if (const auto* action = dynamic_cast<const QAction*>(object)) {
      AddAction(shown, *action);
    }
    if (object->objectName().startsWith("selection")) {  // tells of time
      shown.erase("text");
      shown.erase("name");
    }
    std::erase_if(shown, [](const auto& property) { return property.second.empty(); });
    all[object->objectName().toStdString()] = shown;
  }
  return all;
}

std::map<string, QWidget*> OpenWindows()
{
  std::map<string, QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && !window->objectName().isEmpty() && dynamic_cast<QMenu*>(window) == nullptr &&
        !window->objectName().startsWith("qt")) {
      windows[window->objectName().toStdString()] = window;
    }
  }
  return windows;
}

string InWords(const Properties& properties)
{
  string words;
  for (const auto& [property, value] : properties) {
    words += (words.empty() ? "" : " ") + property + (value == "yes" ? "" : " " + value);
  }
  return words;
}

std::vector<string> Differences(const std::map<string, Properties>& before,
                                const std::map<string, Properties>& after)
{
  std::vector<string> lines;
  for (const auto& [control, now] : after) {
    const auto found = before.find(control);
    Properties changed = found == before.end() ? Properties() : found->second;
    for (auto& [property, value] : changed) {
      value = "-";  // unless it still has one
    }
    for (const auto& [property, value] : now) {
      changed[property] = value;
    }
    for (const auto& [property, value] : changed) {
      const bool had = found != before.end() && found->second.contains(property);
      if (!had || found->second.at(property) != value) {
        lines.push_back(control + " " + property + ": " + value);
      }
    }
  }
  return lines;
}

std::map<string, std::function<void(QWidget&)>> ActionsOf(const QWidget& window)
{
  std::map<string, std::function<void(QWidget&)>> actions;
  const auto add = [&actions](const string& name, const std::map<string, Qt::Key>& keys) {
    for (const auto& [word, pressed] : keys) {
      actions[name + " " + word] = [control = QString::fromStdString(name), key = pressed](QWidget& in) {
        auto* widget = in.findChild<QWidget*>(control);
        QTest::keyClick(widget == nullptr ? &in : widget, key);
      };
    }
  };
  for (const auto& shown : ShownBy(window)) {
    const string& name = shown.first;
    const QString control = QString::fromStdString(name);
    const auto* widget = window.findChild<QWidget*>(control);
    const auto* action = window.findChild<QAction*>(control);
    const auto* line = dynamic_cast<const QLineEdit*>(widget);
    if (action != nullptr && action->menu() == nullptr && action->isEnabled()) {
      actions[name] = [control](QWidget& in) { in.findChild<QAction*>(control)->trigger(); };
    } else if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) {
      continue;
    } else if (dynamic_cast<const QAbstractButton*>(widget) != nullptr) {
      actions[name] = [control](QWidget& in) {
        auto* button = in.findChild<QWidget*>(control);
        constexpr int Inside = 10;  // boxes and options answer at their mark, which stands at the left
        QTest::mouseClick(button, Qt::LeftButton, {}, {Inside, button->height() / 2});
      };
    } else if (dynamic_cast<const QScrollBar*>(widget) != nullptr) {
      add(name,
          {{"right", Qt::Key_Right}, {"page", Qt::Key_PageUp}, {"end", Qt::Key_End}, {"home", Qt::Key_Home}});
    } else if (line != nullptr && !line->isReadOnly()) {
      add(name, {{"7", Qt::Key_7}, {"minus", Qt::Key_Minus}});
    } else if (dynamic_cast<const QListWidget*>(widget) != nullptr) {
      add(name, {{"space", Qt::Key_Space}});
    } else if (name == "PlotBox") {
      add(name,
          {{"plus", Qt::Key_Plus}, {"minus", Qt::Key_Minus}, {"left", Qt::Key_Left}, {"home", Qt::Key_Home}});
    }
  }
  add("key", {{"Enter", Qt::Key_Return}, {"Esc", Qt::Key_Escape}, {"F1", Qt::Key_F1}});
  return actions;
}

void ExpectGoodLayout(const QWidget& window)
{
  for (const auto* widget : window.findChildren<QWidget*>()) {
    const QWidget* parent = widget->parentWidget();
    if (!Counts(*widget, window) || !widget->isVisible() || parent == nullptr) {
      continue;
    }
    SCOPED_TRACE(window.objectName().toStdString() + " " + widget->objectName().toStdString());
    EXPECT_FALSE(widget->geometry().isEmpty());
    const bool scrolled = dynamic_cast<const QAbstractScrollArea*>(parent->parentWidget()) != nullptr;
    EXPECT_TRUE(scrolled || parent->rect().contains(widget->geometry()));
    EXPECT_TRUE(scrolled || parent->layout() == nullptr || Holds(*parent->layout(), *widget));
    for (const QObject* other : parent->children()) {
      const auto* sibling = dynamic_cast<const QWidget*>(other);
      if (sibling != nullptr && sibling != widget && sibling->isVisible() && !sibling->isWindow() &&
          Counts(*sibling, window)) {
        EXPECT_FALSE(sibling->geometry().intersects(widget->geometry()))
            << "lies over " << sibling->objectName().toStdString();
      }
    }
    const auto* label = dynamic_cast<const QLabel*>(widget);
    if (label != nullptr && label->wordWrap() && !label->text().isEmpty()) {
      EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    }
    if (const auto* button = dynamic_cast<const QAbstractButton*>(widget); button != nullptr) {
      EXPECT_GT(button->width(),
                button->fontMetrics().horizontalAdvance(QString(button->text()).remove('&')));
    }
  }
}

}  // namespace veln
