#pragma once

#include <QObject>

class QWidget;

namespace veln {

/// As long as it lives, all mouse and key input of the program is dropped but that of one widget: what long
/// work leaves open while it lets events through.
class InputGuard : public QObject {
 public:
  explicit InputGuard(QWidget* open);
  ~InputGuard() override;

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QWidget* open_;
};

}  // namespace veln
