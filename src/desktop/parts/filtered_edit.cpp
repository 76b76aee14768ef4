#include "desktop/parts/filtered_edit.h"

#include "desktop/parts/controls.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include <utility>

namespace veln {

namespace {

bool IsDeletion(const QKeyEvent& event)
{
  return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete ||
         event.matches(QKeySequence::Cut) || event.matches(QKeySequence::DeleteStartOfWord) ||
         event.matches(QKeySequence::DeleteEndOfWord) || event.matches(QKeySequence::DeleteEndOfLine) ||
         event.matches(QKeySequence::DeleteCompleteLine);
}

/// A key that a text box would enter: any text but control characters and Ctrl's shortcuts.
bool IsCharacter(const QKeyEvent& event)
{
  const Qt::KeyboardModifiers held = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  return held != Qt::ControlModifier && !event.text().isEmpty() &&
         event.text().at(0).category() != QChar::Other_Control;
}

}  // namespace

FilteredEdit::FilteredEdit(QWidget* parent, const char* name, const QString& toolTip, Filter filter)
    : QLineEdit(parent), filter_(std::move(filter))
{
  setObjectName(name);
  setToolTip(toolTip);
  setDragEnabled(false);
  // An assistive technology puts a text in as a whole.
  connect(this, &QLineEdit::textChanged, this, [this](const QString& text) { TakeOver(text); });
}

void FilteredEdit::Show(const QString& text)
{
  known_ = text;
  if (this->text() != text) {
    setText(text);
  }
}

void FilteredEdit::keyPressEvent(QKeyEvent* event)
{
  if (event->matches(QKeySequence::Paste)) {
    PasteText();
  } else if (event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo)) {
    event->accept();  // an undone deletion would enter characters past the filter
  } else if (IsDeletion(*event)) {
    Delete([this, event] { QLineEdit::keyPressEvent(event); });
  } else if (IsCharacter(*event)) {
    Enter(event->text());
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

void FilteredEdit::inputMethodEvent(QInputMethodEvent* event)
{
  const QString& composed = event->commitString();
  QInputMethodEvent rest(event->preeditString(), event->attributes());
  if (hasSelectedText()) {  // what is composed takes the place of the selection
    Delete([this, &rest] { QLineEdit::inputMethodEvent(&rest); });
  } else {
    QLineEdit::inputMethodEvent(&rest);
  }
  Enter(composed);
}

void FilteredEdit::contextMenuEvent(QContextMenuEvent* event)
{
  QMenu menu(this);
  QAction* cut = menu.addAction("Cu&t");
  QAction* copyText = menu.addAction("&Copy");
  QAction* pasteText = menu.addAction("&Paste");
  cut->setEnabled(hasSelectedText());
  copyText->setEnabled(hasSelectedText());
  const QAction* chosen = menu.exec(event->globalPos());
  if (chosen == cut) {
    Delete([this] { this->cut(); });
  } else if (chosen == copyText) {
    copy();
  } else if (chosen == pasteText) {
    PasteText();
  }
}

void FilteredEdit::dropEvent(QDropEvent* event)
{
  setFocus();
  Enter(event->mimeData()->text());
  event->acceptProposedAction();
}

void FilteredEdit::mouseReleaseEvent(QMouseEvent* event)
{
  const QClipboard* clipboard = QGuiApplication::clipboard();
  if (event->button() == Qt::MiddleButton && clipboard->supportsSelection()) {
    Enter(clipboard->text(QClipboard::Selection));
  } else {
    QLineEdit::mouseReleaseEvent(event);
  }
}

void FilteredEdit::Enter(const QString& text)
{
  for (const char32_t character : text.toUcs4()) {
    EnterCharacter(character, QString::fromUcs4(&character, 1));
  }
}

void FilteredEdit::EnterCharacter(char32_t character, const QString& entered)
{
  const QString before = text();
  QString after = before;
  const int at = hasSelectedText() ? selectionStart() : cursorPosition();
  after.remove(at, static_cast<int>(selectedText().size()));
  after.insert(at, entered);
  if (after.size() > maxLength()) {
    after = before;  // a full box takes the key but not the character
  }
  if (filter_({character, FromQt(before), FromQt(after)}) && after != before) {
    editing_ = true;
    insert(entered);
    editing_ = false;
    known_ = text();
  }
}

void FilteredEdit::PasteText()
{
  Enter(QGuiApplication::clipboard()->text());
}

void FilteredEdit::Delete(const std::function<void()>& deletion)
{
  const QString before = text();
  editing_ = true;
  deletion();
  editing_ = false;
  known_ = text();
  filter_({0, FromQt(before), FromQt(text())});
}

void FilteredEdit::TakeOver(const QString& text)
{
  if (editing_ || text == known_) {
    return;
  }
  const QString before = known_;
  Show("");
  filter_({0, FromQt(before), ""});
  Enter(text);
}

}  // namespace veln
