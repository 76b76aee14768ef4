#pragma once

#include "desktop/parts/text_roles.h"

#include <QString>

class QAbstractButton;
class QCheckBox;
class QRadioButton;
class QWidget;

namespace veln {

/// An option that its form selects; none of a group may be.
QRadioButton* MakeOption(QWidget* parent, const char* name, const QString& caption,
                         const QString& toolTip = {});

QCheckBox* MakeCheck(QWidget* parent, const char* name, const QString& caption, const QString& toolTip = {});

/// Shows a form's choice: one that is on has its own colour, one that is off that of `offRole`.
void ShowChoice(QAbstractButton& button, bool on, TextRole offRole = TextRole::Normal);

/// Shows a form's choice and whether it can be made.
void ShowChoice(QAbstractButton& button, bool on, bool enabled);

}  // namespace veln
