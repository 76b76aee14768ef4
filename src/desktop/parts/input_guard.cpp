#include "desktop/parts/input_guard.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace veln {

namespace {

bool IsInput(QEvent::Type type)
{
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

InputGuard::InputGuard(QWidget* open) : open_(open)
{
  qApp->installEventFilter(this);
}

InputGuard::~InputGuard()
{
  qApp->removeEventFilter(this);
}

bool InputGuard::eventFilter(QObject* object, QEvent* event)
{
  // A menu's or a window's key goes to its action or shortcut, everything else to a widget.
  const bool mine = object->isWidgetType() || event->type() == QEvent::Shortcut;
  if (!mine || object == open_ || !IsInput(event->type())) {
    return false;
  }
  if (event->type() == QEvent::Close) {
    event->ignore();
  }
  return true;
}

}  // namespace veln
