#pragma once

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <initializer_list>

class QPushButton;

namespace veln {

inline constexpr int SmallGap = 8;   ///< px between related controls
inline constexpr int LargeGap = 16;  ///< px between groups
inline constexpr int WindowMargin = 12;

/// What stands in a row or a column: a widget, a layout, or room.
class LayoutItem {
 public:
  // Both stand in a list of items as they are.
  LayoutItem(QWidget* widget, int share = 0) : widget_(widget), share_(share) {}
  LayoutItem(QLayout* layout, int share = 0) : layout_(layout), share_(share) {}
  /// The room that is left.
  static LayoutItem Rest() { return {0, 1}; }
  /// Room of this many pixels.
  static LayoutItem Gap(int pixels) { return {pixels, 0}; }

  void AddTo(QBoxLayout& line) const;

 private:
  LayoutItem(int gap, int share) : gap_(gap), share_(share) {}

  QWidget* widget_ = nullptr;
  QLayout* layout_ = nullptr;
  int gap_ = 0;
  int share_ = 0;
};

/// Items beside or below each other, `gap` pixels apart; those with a share divide what room is left.
QHBoxLayout* Row(std::initializer_list<LayoutItem> items, int gap = SmallGap);
QVBoxLayout* Column(std::initializer_list<LayoutItem> items, int gap = SmallGap);

/// A layout without room around it.
template <class Layout>
Layout* Tight(Layout* layout)
{
  layout->setContentsMargins(0, 0, 0, 0);
  return layout;
}

/// A box with a title around its content.
QGroupBox* Frame(QWidget* parent, const char* name, const QString& title, QLayout* content);

/// What all windows consist of: groups below each other with room around them.
void SetColumn(QWidget& window, std::initializer_list<LayoutItem> items, int gap = LargeGap);

/// The last line of a window: the first button, help, at its left, null where there is none, the others at
/// its right, and the last of them the one that Enter presses.
QLayout* ButtonRow(std::initializer_list<QPushButton*> buttons);

/// Lets a widget keep its room while it is hidden, so that nothing jumps.
void KeepRoom(QWidget& widget);

/// Shows or hides several widgets.
void SetShown(std::initializer_list<QWidget*> widgets, bool shown);

}  // namespace veln
