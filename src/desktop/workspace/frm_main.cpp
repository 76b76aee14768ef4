#include "desktop/workspace/frm_main.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "desktop/parts/text_roles.h"
#include "desktop/survey/frm_out_fd.h"
#include "desktop/survey/frm_structure.h"
#include "desktop/workspace/frm_project.h"
#include "desktop/workspace/status_cards.h"
#include "forms/exit_flow.h"
#include "forms/next_step.h"
#include "workspace/version.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace veln {

namespace {

constexpr const char* GeometryKey = "windows/frmMain";

/// The one file that is dragged; empty for anything else.
QString DraggedFile(const QMimeData& data)
{
  const QList<QUrl> urls = data.urls();
  const QString file = urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
  return QFileInfo(file).isFile() ? file : QString();
}

/// The frame that shows where a file may be dropped.
class DropPlace : public QFrame {
 public:
  explicit DropPlace(QWidget* parent) : QFrame(parent) {}

 protected:
  void paintEvent(QPaintEvent* /*event*/) override
  {
    constexpr float Faintness = 0.5F;
    QPainter painter(this);
    QColor faint = palette().color(QPalette::WindowText);
    faint.setAlphaF(Faintness);
    painter.setPen(QPen(faint, 1, Qt::DashLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
};

void ScaleFont(QWidget& widget, double scale)
{
  QFont font = QWidget().font();
  font.setPointSizeF(font.pointSizeF() * scale);
  widget.setFont(font);
}

}  // namespace

frmMain::frmMain(Program& program) : program_(program), timer1_(new QTimer(this))
{
  constexpr int BannerMilliseconds = 10;
  setObjectName(Name);
  setWindowTitle(QString("VELN-QTRD Software:   Version  %1").arg(ProgramVersion));
  setAcceptDrops(true);
  program_.SetMainWindow(this);
  program_.OnChange(this, [this] { Mirror(); });
  menus_.Fill(*menuBar(), MenuLines());
  MakeContent();
  Mirror();
  Place();
  timer1_->setObjectName("Timer1");
  connect(timer1_, &QTimer::timeout, this, [this] { TickBanner(); });
  timer1_->start(BannerMilliseconds);
}

frmMain::~frmMain()
{
  program_.Settings().setValue(GeometryKey, saveGeometry());
}

void frmMain::MakeContent()
{
  constexpr int WidestLine = 160;  // characters; beyond it the column stays in the middle
  auto* column = new QWidget(this);
  column->setMaximumWidth(fontMetrics().averageCharWidth() * WidestLine);
  cards_ = new StatusCards(column);
  SetColumn(*column, {MakeBanner(), MakeStart(), cards_, LayoutItem::Rest()});

  auto* content = new QWidget(this);
  content->setLayout(Tight(Row({column})));
  auto* scroll = new QScrollArea(this);
  scroll->setObjectName("Cards");
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::StrongFocus);  // arrow keys scroll
  scroll->setAccessibleName("Project Status");
  scroll->setWidget(content);
  setCentralWidget(scroll);

  nextStep_ = MakeElidedLabel(this, "LblNextStep", "");
  nextStep_->setContentsMargins(SmallGap, 0, 0, 0);
  statusBar()->addWidget(nextStep_, 1);
}

QWidget* frmMain::MakeBanner()
{
  constexpr std::array<const char*, 3> Names = {"Label20", "Label22", "Label23"};
  auto* banner = new QWidget(this);
  bannerLayout_ = Tight(Column({}, SmallGap / 2));
  banner->setLayout(bannerLayout_);
  for (std::size_t i = 0; i < Names.size(); ++i) {
    QLabel* label = MakeLine(banner, Names.at(i), "");
    label->hide();
    KeepRoom(*label);
    SetRole(*label, TextRole::Maker);
    bannerLabels_.at(i) = label;
    bannerLayout_->addWidget(label);
  }
  return banner;
}

QWidget* frmMain::MakeStart()
{
  start_ = new QWidget(this);
  startLine_ = MakeText(start_, "LblStart", "Begin with File, Set / Create Project and Field ID.");
  constexpr int DropLines = 9;
  auto* place = new DropPlace(start_);
  place->setMinimumHeight(place->fontMetrics().lineSpacing() * DropLines);
  place->setObjectName("DropPlace");
  dropLine_ = MakeText(place, "LblDrop", "");
  dropLine_->setAlignment(Qt::AlignCenter);
  SetColumn(*place, {dropLine_});
  start_->setLayout(Tight(Column({startLine_, place}, LargeGap)));
  return start_;
}

void frmMain::Place()
{
  constexpr QSize FirstSize(900, 640);
  if (!restoreGeometry(program_.Settings().value(GeometryKey).toByteArray())) {
    resize(FirstSize.boundedTo(screen()->availableSize()));
  }
}

void frmMain::TickBanner()
{
  banner_.Tick();
  for (std::size_t i = 0; i < bannerLabels_.size(); ++i) {
    bannerLabels_.at(i)->setText(ToQt(banner_.Labels.at(i).Text));
    bannerLabels_.at(i)->setVisible(banner_.Labels.at(i).Visible);
  }
  SetRole(*bannerLabels_.back(), banner_.LastLineRed ? TextRole::Caution : TextRole::Maker);
  if (!banner_.TimerRunning) {
    timer1_->stop();
  }
}

void frmMain::SetProject()
{
  banner_.BannerRunning = 0;
  program_.Show<frmProject>();
}

void frmMain::ImportSurvey(bool transect)
{
  if (auto* window = program_.Show<frmStructure>()) {
    window->SetSurveyType(transect);
    if (!keptFile_.isEmpty()) {
      window->SetFileName(std::exchange(keptFile_, {}));
      Mirror();
    }
  }
}

void frmMain::Exit()
{
  switch (RequestExit(program_.State, program_.Ask())) {
    case ExitRoute::Leave:
      program_.EndProgram();
      break;
    case ExitRoute::Export:
      program_.Show<frmOutFD>();
      break;
    case ExitRoute::Stay:
      break;
  }
}

void frmMain::Mirror()
{
  menus_.Mirror();
  MirrorStart();
  QWidget* fresh = cards_->Mirror(program_.State);
  if (fresh != nullptr && isVisible()) {
    auto* scroll = dynamic_cast<QScrollArea*>(centralWidget());
    QTimer::singleShot(0, fresh, [scroll, fresh] { scroll->ensureWidgetVisible(fresh, 0, WindowMargin); });
  }
}

void frmMain::MirrorStart()
{
  constexpr double Large = 1.6;
  const SurveyState& state = program_.State;
  const bool begun = !state.ProjectName.empty();
  bannerLayout_->setDirection(begun ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  for (QLabel* label : bannerLabels_) {
    ScaleFont(*label, begun ? 1 : Large);
  }
  start_->setVisible(state.SurveySize == 0);
  startLine_->setVisible(!begun);
  const QString name = QFileInfo(keptFile_).fileName();
  if (!keptFile_.isEmpty()) {
    dropLine_->setText(name + " is kept for the import.");
  } else {
    dropLine_->setText(begun ? "Drop a survey file here, or choose File, Import Survey Data File."
                             : "A survey file dropped here is kept until the project is set.");
  }
  const QString step = ToQt(NextStep(state));
  ShowValue(*nextStep_, keptFile_.isEmpty() ? step : step + "; " + name + " is kept for the import");
}

void frmMain::changeEvent(QEvent* event)
{
  if (event->type() == QEvent::PaletteChange) {
    RefreshRoles(*this);
  }
  QMainWindow::changeEvent(event);
}

/// Closing is always refused; what ends the program is the exit flow.
void frmMain::closeEvent(QCloseEvent* event)
{
  event->ignore();
  Exit();
}

void frmMain::dragEnterEvent(QDragEnterEvent* event)
{
  const Workflow& menu = program_.State.Menu;
  const bool wanted = menu.IsEnabled(MenuEntry::mnuProject) || menu.IsEnabled(MenuEntry::mnuImport);
  if (wanted && !DraggedFile(*event->mimeData()).isEmpty()) {
    event->acceptProposedAction();
  }
}

void frmMain::dropEvent(QDropEvent* event)
{
  const QString file = DraggedFile(*event->mimeData());
  if (file.isEmpty()) {
    return;
  }
  event->acceptProposedAction();
  if (program_.State.Menu.IsEnabled(MenuEntry::mnuImport)) {
    AskSurveyType(file, mapToGlobal(event->position().toPoint()));
  } else if (program_.State.Menu.IsEnabled(MenuEntry::mnuProject)) {
    keptFile_ = file;
    Mirror();
  }
}

void frmMain::AskSurveyType(const QString& file, QPoint where)
{
  auto* menu = new QMenu(this);
  menu->setObjectName("DropMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const bool transect : {false, true}) {
    connect(menu->addAction(transect ? "&Transect" : "&Grid"), &QAction::triggered, this,
            [this, transect, file] {
              keptFile_ = file;
              ImportSurvey(transect);
            });
  }
  // Once the drop is over: until then the pointer belongs to where the file came from.
  QTimer::singleShot(0, menu, [menu, where] { menu->popup(where); });
}

}  // namespace veln
