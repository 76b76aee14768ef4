#include "desktop/parts/controls.h"

#include <QPainter>

namespace veln {

namespace {

constexpr const char* CaptionProperty = "valueCaption";

void InitValueLabel(QLabel& label, const char* name, const QString& caption)
{
  label.setObjectName(name);
  label.setTextFormat(Qt::PlainText);
  label.setTextInteractionFlags(Qt::TextSelectableByMouse);
  label.setProperty(CaptionProperty, caption);
  label.setAccessibleName(caption);
}

}  // namespace

QString ToQt(const std::string& text)
{
  return QString::fromStdString(text);
}

std::string FromQt(const QString& text)
{
  return text.toStdString();
}

QString WithoutKey(const QString& caption)
{
  return QString(caption).remove('&');
}

QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption, const QString& toolTip,
                        const std::function<void()>& clicked)
{
  auto* button = new QPushButton(parent);
  button->setObjectName(name);
  button->setToolTip(toolTip);
  button->setAutoDefault(false);
  SetCaption(*button, caption);
  QObject::connect(button, &QPushButton::clicked, button, clicked);
  return button;
}

void SetCaption(QAbstractButton& button, const QString& caption)
{
  button.setText(caption);
  button.setAccessibleName(WithoutKey(caption).trimmed());
}

QLabel* MakeFieldLabel(QWidget* parent, const char* name, const QString& caption, QWidget* field)
{
  auto* label = new QLabel(caption, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(field);
  QString accessible = WithoutKey(caption).trimmed();
  if (accessible.endsWith(':')) {
    accessible.chop(1);
  }
  field->setAccessibleName(accessible);
  return label;
}

QLabel* MakeValueLabel(QWidget* parent, const char* name, const QString& caption, Qt::Alignment side)
{
  auto* label = new QLabel(parent);
  InitValueLabel(*label, name, caption);
  label->setAlignment(side | Qt::AlignVCenter);
  return label;
}

void ShowValue(QLabel& label, const QString& value)
{
  label.setText(value);
  label.setAccessibleName((label.property(CaptionProperty).toString() + " " + value.trimmed()).trimmed());
}

QLabel* MakeText(QWidget* parent, const char* name, const QString& text)
{
  auto* label = new QLabel(text, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

QLabel* MakeLine(QWidget* parent, const char* name, const QString& text)
{
  QLabel* label = MakeText(parent, name, text);
  label->setWordWrap(false);
  return label;
}

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
  constexpr int FewCharacters = 8;
  return {fontMetrics().averageCharWidth() * FewCharacters, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* /*event*/)
{
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
  setToolTip(shown == text() ? QString() : text());
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(contentsRect(), static_cast<int>(alignment()), shown);
}

ElidedLabel* MakeElidedLabel(QWidget* parent, const char* name, const QString& caption)
{
  auto* label = new ElidedLabel(parent);
  InitValueLabel(*label, name, caption);
  label->setTextInteractionFlags(Qt::NoTextInteraction);  // what is painted is not the whole text
  return label;
}

}  // namespace veln
