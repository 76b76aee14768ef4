#pragma once

#include "desktop/parts/text_roles.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QString>

#include <functional>

namespace veln {

/// An option that its form selects; none of a group may be. `chosen` is told whenever it becomes the one
/// that is selected, by mouse, key or screen reader, but not when its form shows it.
QRadioButton* MakeOption(QWidget* parent, const char* name, const QString& caption, const QString& toolTip,
                         const std::function<void()>& chosen);

/// A box. `ticked` is told whenever it changes, but not when its form shows it.
QCheckBox* MakeCheck(QWidget* parent, const char* name, const QString& caption, const QString& toolTip,
                     const std::function<void(bool on)>& ticked);

/// Shows a form's choice: one that is on has its own colour, one that is off that of `offRole`.
void ShowChoice(QAbstractButton& button, bool on, TextRole offRole = TextRole::Normal);

/// Shows a form's choice and whether it can be made.
void ShowChoice(QAbstractButton& button, bool on, bool enabled);

}  // namespace veln
