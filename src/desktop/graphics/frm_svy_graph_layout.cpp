// What frmSvyGraph is made of: its panels, without their rules.
#include "desktop/graphics/frm_legend.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/graphics/plot_board.h"
#include "desktop/parts/controls.h"
#include "graphics/line_plots.h"
#include "graphics/site_text.h"

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace veln {

namespace {

/// The box of the row number: typed characters pass a filter, whatever is pasted comes in.
class RowEdit : public QLineEdit {
 public:
  RowEdit(QWidget* parent, std::function<bool(char32_t)> filter)
      : QLineEdit(parent), filter_(std::move(filter))
  {
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override
  {
    const QList<uint> typed = event->text().toUcs4();
    const bool enters = typed.size() == 1 && QChar::isPrint(typed.constFirst()) &&
                        (event->modifiers() & Qt::ControlModifier) == 0;
    if (enters && !filter_(typed.constFirst())) {
      return;
    }
    QLineEdit::keyPressEvent(event);
  }

 private:
  std::function<bool(char32_t)> filter_;
};

}  // namespace

frmSvyGraph::frmSvyGraph(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, "Interactive Survey Graphics Mode", {1000, 750}, "hdoc12", MenuEntry::mnuSG}),
      graph_(LoadSurveyGraph(program.State)),
      deletedSites_(program.State.DeletedSiteCount)
{
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakePanels());
  board_ = new PlotBoard(this);
  board_->Pane().Describe = [this](int site) {
    return ToQt(SiteText(State(), static_cast<std::size_t>(site)));
  };
  layout->addWidget(board_, 1);
  MakeMenus();
  program.OnChange(this, [this] {
    northArrow_->setEnabled(NorthArrowOffered(State()));
    ForgetDeletedSites();
  });
  MirrorPlot(true);
  Mirror();
  board_->Pane().setFocus();
}

/// The column of the panels keeps its width whichever of them show.
QWidget* frmSvyGraph::MakePanels()
{
  auto* column = new QWidget(this);
  auto* lines = new QVBoxLayout(column);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(LargeGap);
  linePanel_ = MakeLinePanel();
  statisticsPanel_ = MakeStatisticsPanel();
  legendPanel_ = MakeLegendPanel();
  int widest = fontMetrics().horizontalAdvance("u= 0000000.000") + 2 * LargeGap;
  for (QGroupBox* panel : {linePanel_, statisticsPanel_, legendPanel_}) {
    widest = std::max(widest, panel->sizeHint().width());
    lines->addWidget(panel);
  }
  lines->addStretch();
  column->setFixedWidth(widest);
  return column;
}

QGroupBox* frmSvyGraph::MakeLinePanel()
{
  auto* frame = new QGroupBox("Line Plots", this);
  frame->setObjectName("Frame1");
  row_ = new RowEdit(frame, [this](char32_t character) { return KeyInRow(character, Shared().Ask()); });
  row_->setObjectName("Text1");
  row_->setAccessibleName("Line number");
  row_->setToolTip(
      " enter the line number to plot here, or use the arrow buttons to change the current line number ");
  row_->setAlignment(Qt::AlignRight);
  constexpr int Digits = 5;
  row_->setMinimumWidth(fontMetrics().horizontalAdvance('0') * Digits + LargeGap);
  connect(row_, &QLineEdit::textChanged, this,
          [this](const QString& text) { graph_.LinePanel.Text1 = FromQt(text); });
  const std::array<std::pair<const char*, const char*>, 7> faces = {{
      {"&>>", " increment displayed line number "},
      {"&<<", " decrement displayed line number "},
      {"P&lot", " plot the signal data corresponding to the displayed line number "},
      {"&Refresh", " clear the screen "},
      {"&Done", " exit the line plotting mode "},
      {"s&1 Stats", " compute s1 signal statistics for the current line "},
      {"s&2 Stats", " compute s2 signal statistics for the current line "},
  }};
  for (std::size_t i = 0; i < faces.size(); ++i) {
    const QByteArray name = "Command" + QByteArray::number(static_cast<int>(i) + 1);
    rowButtons_.at(i) = MakeButton(frame, name, faces.at(i).first, faces.at(i).second);
  }
  const int arrow = fontMetrics().horizontalAdvance(">>") + 2 * LargeGap;
  rowButtons_[0]->setMaximumWidth(arrow);
  rowButtons_[1]->setMaximumWidth(arrow);
  rowButtons_[2]->setDefault(true);

  auto* lines = new QVBoxLayout(frame);
  lines->setSpacing(SmallGap);
  auto* number = new QHBoxLayout;
  number->addWidget(rowButtons_[1]);
  number->addWidget(row_, 1);
  number->addWidget(rowButtons_[0]);
  lines->addLayout(number);
  for (const std::size_t button : {2, 5, 6, 3, 4}) {
    lines->addWidget(rowButtons_.at(button));
  }
  const auto act = [this](std::size_t button, std::function<void(SurveyGraph&)> action) {
    connect(rowButtons_.at(button), &QPushButton::clicked, this,
            [this, action = std::move(action)] { Act(action); });
  };
  act(0, NextRow);
  act(1, PreviousRow);
  act(2, [this](SurveyGraph& graph) { PlotRow(graph, State(), Shared().Ask()); });
  act(3, ClearRows);
  act(4, LeaveLinePlots);
  act(5, [this](SurveyGraph& graph) { ShowRowStats1(graph, State(), Shared().Ask()); });
  act(6, [this](SurveyGraph& graph) { ShowRowStats2(graph, State(), Shared().Ask()); });
  return frame;
}

QGroupBox* frmSvyGraph::MakeStatisticsPanel()
{
  constexpr std::array<const char*, 9> Names = {"LblT1", "Lblm1",   "Lblv1", "LblT2", "Lblm2",
                                                "Lblv2", "LblCorr", "Lblr1", "Lblr2"};
  constexpr std::size_t LinesPerBlock = 3;
  auto* frame = new QGroupBox("Statistics", this);
  frame->setObjectName("Frame2");
  auto* lines = new QVBoxLayout(frame);
  lines->setSpacing(SmallGap / 4);
  for (std::size_t i = 0; i < Names.size(); ++i) {
    statistics_.at(i) = MakeValueLabel(frame, Names.at(i), "");
    if (i > 0 && i % LinesPerBlock == 0) {
      lines->addSpacing(SmallGap);
    }
    lines->addWidget(statistics_.at(i));
  }
  return frame;
}

QGroupBox* frmSvyGraph::MakeLegendPanel()
{
  auto* frame = new QGroupBox("Legend", this);
  frame->setObjectName("Frame3");
  QPushButton* display =
      MakeButton(frame, "Command8", "displa&y", " display the colorscale or grayscale legend ");
  auto* lines = new QVBoxLayout(frame);
  lines->addWidget(display);
  connect(display, &QPushButton::clicked, this, [this] { Shared().Show<frmLegend>(); });
  return frame;
}

}  // namespace veln
