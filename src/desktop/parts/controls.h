#pragma once

#include <QLabel>
#include <QPushButton>
#include <QString>

#include <functional>
#include <string>

namespace veln {

/// Text of the engine, which is UTF-8, for a window.
QString ToQt(const std::string& text);
/// Text of a window for the engine.
std::string FromQt(const QString& text);
/// A caption without the "&" that marks its key.
QString WithoutKey(const QString& caption);

/// A push button and what it does. It is no default button until it is made one.
QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption, const QString& toolTip,
                        const std::function<void()>& clicked);
/// Gives a button another caption, and with it its accessible name.
void SetCaption(QAbstractButton& button, const QString& caption);

/// A label that stands before a field: takes the field's key and gives it its accessible name.
QLabel* MakeFieldLabel(QWidget* parent, const char* name, const QString& caption, QWidget* field);

/// A label that shows a value, as plain text. Its accessible name is `caption` and the value, kept by
/// `ShowValue`.
QLabel* MakeValueLabel(QWidget* parent, const char* name, const QString& caption,
                       Qt::Alignment side = Qt::AlignLeft);
void ShowValue(QLabel& label, const QString& value);

/// A label for given text, plain and wrapped where it is long.
QLabel* MakeText(QWidget* parent, const char* name, const QString& text);
/// The same on one line.
QLabel* MakeLine(QWidget* parent, const char* name, const QString& text);

/// A label for long paths: cut in the middle where the room is short, with the whole text in its tool-tip.
class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent);
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

/// A value label for long texts.
ElidedLabel* MakeElidedLabel(QWidget* parent, const char* name, const QString& caption);

}  // namespace veln
