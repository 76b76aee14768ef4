#include "desktop/parts/choices.h"

#include "desktop/parts/controls.h"

#include <QSignalBlocker>

namespace veln {

namespace {

template <class Button>
Button* MakeChoice(QWidget* parent, const char* name, const QString& caption, const QString& toolTip)
{
  auto* button = new Button(parent);
  button->setObjectName(name);
  button->setToolTip(toolTip);
  SetCaption(*button, caption);
  return button;
}

}  // namespace

QRadioButton* MakeOption(QWidget* parent, const char* name, const QString& caption, const QString& toolTip,
                         const std::function<void()>& chosen)
{
  auto* option = MakeChoice<QRadioButton>(parent, name, caption, toolTip);
  QObject::connect(option, &QRadioButton::toggled, option, [chosen](bool on) {
    if (on) {
      chosen();
    }
  });
  return option;
}

QCheckBox* MakeCheck(QWidget* parent, const char* name, const QString& caption, const QString& toolTip,
                     const std::function<void(bool on)>& ticked)
{
  auto* check = MakeChoice<QCheckBox>(parent, name, caption, toolTip);
  QObject::connect(check, &QCheckBox::toggled, check, ticked);
  return check;
}

void ShowChoice(QAbstractButton& button, bool on, TextRole offRole)
{
  const QSignalBlocker quiet(button);
  const bool exclusive = button.autoExclusive();
  button.setAutoExclusive(false);  // an exclusive one cannot be cleared
  button.setChecked(on);
  button.setAutoExclusive(exclusive);
  SetRole(button, on ? TextRole::Chosen : offRole);
}

void ShowChoice(QAbstractButton& button, bool on, bool enabled)
{
  ShowChoice(button, on);
  button.setEnabled(enabled);
}

}  // namespace veln
