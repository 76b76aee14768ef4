#include "desktop/program/child_window.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"
#include "desktop/program/help_request.h"
#include "toolkit/drawing.h"

#include <QEvent>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLayout>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>

namespace veln {

namespace {

QString GeometryKey(const QWidget& window)
{
  return "windows/" + window.objectName();
}

/// Width at which the title stands whole beside the icon and the buttons of the title bar.
int TitleRoom(const QWidget& window)
{
  constexpr int Buttons = 12;  // in characters of average width
  QFont bold = window.font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  return metrics.horizontalAdvance(window.windowTitle()) + Buttons * metrics.averageCharWidth();
}

}  // namespace

ChildWindow::ChildWindow(Program& program, QWidget* parent, const Traits& traits)
    : QDialog(parent),
      program_(program),
      offset_(traits.OffsetTwips / TwipsPerPixel),
      origin_(traits.Origin != nullptr ? traits.Origin : program.MainWindow()),
      help_(traits.Help),
      gate_(traits.Gate)
{
  setObjectName(traits.Name);
  setWindowTitle(traits.Title);
  setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                 Qt::WindowCloseButtonHint);
  if (!help_.empty()) {
    auto* shortcut = new QShortcut(QKeySequence(QKeySequence::HelpContents), this);
    connect(shortcut, &QShortcut::activated, this, [this] { RequestHelp(program_, help_); });
  }
}

void ChildWindow::BringUp()
{
  if (unloaded_) {
    return;  // it closed itself while it loaded
  }
  if (!isVisible()) {
    Place();
    show();
  }
  if (isMinimized()) {
    showNormal();
  }
  raise();
  activateWindow();
}

void ChildWindow::Unload()
{
  if (unloaded_) {
    return;
  }
  unloaded_ = true;
  if (isVisible()) {
    program_.Settings().setValue(GeometryKey(*this), saveGeometry());
  }
  hide();
  deleteLater();
}

void ChildWindow::reject()
{
  WayOut();
}

QPushButton* ChildWindow::HelpButton(const char* name)
{
  return MakeButton(this, name, "&H", " OnLine Help... ", [this] { RequestHelp(program_, help_); });
}

void ChildWindow::SetMenus(const std::vector<MenuLine>& lines)
{
  auto* bar = new QMenuBar(this);
  layout()->setMenuBar(bar);
  menus_.Fill(*bar, lines);
  menus_.Mirror();
}

void ChildWindow::changeEvent(QEvent* event)
{
  if (event->type() == QEvent::PaletteChange) {
    RefreshRoles(*this);
  }
  QDialog::changeEvent(event);
}

void ChildWindow::Place()
{
  if (restoreGeometry(program_.Settings().value(GeometryKey(*this)).toByteArray())) {
    return;  // kept on a screen by the toolkit
  }
  const QRect screen = (origin_ != nullptr ? origin_->screen() : this->screen())->availableGeometry();
  ensurePolished();
  const QSize room = sizeHint().expandedTo(minimumSizeHint()).expandedTo({TitleRoom(*this), 0});
  resize(room.boundedTo(screen.size()));
  if (origin_ != nullptr) {
    const QPoint corner = origin_->pos() + offset_;
    const QPoint last = screen.bottomRight() - QPoint(frameGeometry().width(), frameGeometry().height());
    move(qMax(screen.left(), qMin(corner.x(), last.x())), qMax(screen.top(), qMin(corner.y(), last.y())));
  }
}

}  // namespace veln
