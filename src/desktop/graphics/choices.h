#pragma once

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

/// Shows a form's choice: one that is on has its own colour.
void ShowChoice(QAbstractButton& button, bool on);

}  // namespace veln
