#pragma once

#include "forms/project_form.h"

#include <QLineEdit>

#include <functional>

namespace veln {

/// A text box whose characters pass a filter one by one, as if typed: typed, pasted, dropped and composed
/// text alike. Keys that enter no character pass silently; a deletion is told with the character 0.
class FilteredEdit : public QLineEdit {
 public:
  /// Whether a key may pass; keeps what the box then holds.
  using Filter = std::function<bool(const Keystroke& key)>;

  FilteredEdit(QWidget* parent, const char* name, const QString& toolTip, Filter filter);
  /// Puts a text into the box past the filter.
  void Show(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void Enter(const QString& text);
  void EnterCharacter(char32_t character, const QString& entered);
  void PasteText();
  void Delete(const std::function<void()>& deletion);
  void TakeOver(const QString& text);

  Filter filter_;
  QString known_;         // what has passed the filter
  bool editing_ = false;  // the box changes by its own doing
};

}  // namespace veln
