#pragma once

#include <QLineEdit>
#include <QScrollBar>
#include <QString>

#include <functional>
#include <string>

namespace veln {

/// A box for text of at most `longest` characters; `entered` is told what it holds, whoever changed it, but
/// not when its form shows it.
QLineEdit* MakeEdit(QWidget* parent, const char* name, const QString& toolTip, int longest,
                    const std::function<void(const std::string& text)>& entered);
/// Shows a form's text in a box; the cursor stays where the text is the same.
void ShowText(QLineEdit& box, const std::string& text);

/// A box that shows a text, which can be copied.
QLineEdit* MakeShownText(QWidget* parent, const char* name, const QString& toolTip = {});
/// The same for a number of so many digits.
QLineEdit* MakeShownNumber(QWidget* parent, const char* name, const QString& toolTip, int digits);

/// A bar on which a number is chosen.
struct BarSteps {
  int Least, Most;
  int Page;        ///< by a click beside its handle or by Page Up
  int Single = 1;  ///< by an arrow
};
QScrollBar* MakeBar(QWidget* parent, const char* name, const BarSteps& steps,
                    const std::function<void(int value)>& moved);
/// Shows a form's number on its bar.
void ShowNumber(QScrollBar& bar, int value);

}  // namespace veln
