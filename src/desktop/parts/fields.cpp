#include "desktop/parts/fields.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"

#include <QSignalBlocker>

namespace veln {

QLineEdit* MakeEdit(QWidget* parent, const char* name, const QString& toolTip, int longest,
                    const std::function<void(const std::string& text)>& entered)
{
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  edit->setToolTip(toolTip);
  edit->setMaxLength(longest);
  QObject::connect(edit, &QLineEdit::textChanged, edit,
                   [entered](const QString& text) { entered(FromQt(text)); });
  return edit;
}

void ShowText(QLineEdit& box, const std::string& text)
{
  const QSignalBlocker quiet(box);
  if (FromQt(box.text()) != text) {
    box.setText(ToQt(text));
  }
}

QLineEdit* MakeShownText(QWidget* parent, const char* name, const QString& toolTip)
{
  auto* text = new QLineEdit(parent);
  text->setObjectName(name);
  text->setToolTip(toolTip);
  text->setReadOnly(true);
  return text;
}

QLineEdit* MakeShownNumber(QWidget* parent, const char* name, const QString& toolTip, int digits)
{
  QLineEdit* number = MakeShownText(parent, name, toolTip);
  number->setAlignment(Qt::AlignRight);
  number->setFixedWidth(number->fontMetrics().horizontalAdvance('0') * digits + LargeGap);
  return number;
}

QScrollBar* MakeBar(QWidget* parent, const char* name, const BarSteps& steps,
                    const std::function<void(int value)>& moved)
{
  constexpr int ShortestBar = 160;
  auto* bar = new QScrollBar(Qt::Horizontal, parent);
  bar->setObjectName(name);
  bar->setFocusPolicy(Qt::StrongFocus);
  bar->setInvertedControls(false);  // to the right is more
  bar->setMinimumWidth(ShortestBar);
  bar->setRange(steps.Least, steps.Most);
  bar->setSingleStep(steps.Single);
  bar->setPageStep(steps.Page);
  QObject::connect(bar, &QScrollBar::valueChanged, bar, moved);
  return bar;
}

void ShowNumber(QScrollBar& bar, int value)
{
  const QSignalBlocker quiet(bar);
  bar.setValue(value);
}

}  // namespace veln
