#include "desktop/parts/choices.h"

#include "desktop/parts/controls.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QSignalBlocker>

namespace veln {

namespace {

void InitChoice(QAbstractButton& button, const char* name, const QString& toolTip)
{
  button.setObjectName(name);
  button.setToolTip(toolTip);
  button.setAccessibleName(WithoutKey(button.text()).trimmed());
}

}  // namespace

QRadioButton* MakeOption(QWidget* parent, const char* name, const QString& caption, const QString& toolTip)
{
  auto* option = new QRadioButton(caption, parent);
  InitChoice(*option, name, toolTip);
  return option;
}

QCheckBox* MakeCheck(QWidget* parent, const char* name, const QString& caption, const QString& toolTip)
{
  auto* check = new QCheckBox(caption, parent);
  InitChoice(*check, name, toolTip);
  return check;
}

void ShowChoice(QAbstractButton& button, bool on, TextRole offRole)
{
  if (auto* option = dynamic_cast<QRadioButton*>(&button)) {
    ShowOption(*option, on);
  } else {
    const QSignalBlocker quiet(button);
    button.setChecked(on);
  }
  SetRole(button, on ? TextRole::Chosen : offRole);
}

void ShowChoice(QAbstractButton& button, bool on, bool enabled)
{
  ShowChoice(button, on);
  button.setEnabled(enabled);
}

}  // namespace veln
