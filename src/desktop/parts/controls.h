#pragma once

#include <QLabel>
#include <QString>

#include <string>

class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace veln {

inline constexpr int SmallGap = 8;   ///< px between related controls
inline constexpr int LargeGap = 16;  ///< px between groups
inline constexpr int WindowMargin = 12;

/// Text of the engine, which is UTF-8, for a window.
QString ToQt(const std::string& text);
/// Text of a window for the engine.
std::string FromQt(const QString& text);
/// A caption without the "&" that marks its key.
QString WithoutKey(const QString& caption);

/// A push button. It is no default button until it is made one.
QPushButton* MakeButton(QWidget* parent, const char* name, const QString& caption, const QString& toolTip);

/// A label that stands before a field: takes the field's key and gives it its accessible name.
QLabel* MakeFieldLabel(QWidget* parent, const char* name, const QString& caption, QWidget* field);

/// A label that shows a value, as plain text. Its accessible name is `caption` and the value, kept by
/// `ShowValue`.
QLabel* MakeValueLabel(QWidget* parent, const char* name, const QString& caption);
void ShowValue(QLabel& label, const QString& value);

/// A label for given text, plain and wrapped where it is long.
QLabel* MakeText(QWidget* parent, const char* name, const QString& text);

/// Shows whether an option button is selected; several in a frame may all be clear. The arrow keys select
/// among them.
void ShowOption(QRadioButton& option, bool selected);

/// Lets a widget keep its room while it is hidden, so that nothing jumps.
void KeepRoom(QWidget& widget);

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
