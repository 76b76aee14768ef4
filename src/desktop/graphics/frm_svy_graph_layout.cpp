// What frmSvyGraph is made of: its panels, without their rules.
#include "desktop/graphics/frm_legend.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/graphics/plot_board.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "graphics/line_plots.h"
#include "graphics/site_text.h"

#include <QKeyEvent>
#include <QLineEdit>

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
    : ChildWindow(program, parent, {Name, "Interactive Survey Graphics Mode", "hdoc12", MenuEntry::mnuSG}),
      graph_(LoadSurveyGraph(program.State)),
      deletedSites_(program.State.DeletedSiteCount)
{
  QWidget* panels = MakePanels();
  board_ = new PlotBoard(this);
  board_->Pane().Describe = [this](int site) {
    return ToQt(SiteText(State(), static_cast<std::size_t>(site)));
  };
  SetColumn(*this, {{Row({panels, {board_, 1}}, LargeGap), 1}});
  MakeMenus();
  program.OnChange(this, [this] {
    MirrorMenus();
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
  linePanel_ = MakeLinePanel();
  statisticsPanel_ = MakeStatisticsPanel();
  legendPanel_ = MakeLegendPanel();
  int widest = fontMetrics().horizontalAdvance("u= 0000000.000") + 2 * LargeGap;
  for (QGroupBox* panel : {linePanel_, statisticsPanel_, legendPanel_}) {
    widest = std::max(widest, panel->sizeHint().width());
  }
  column->setLayout(
      Tight(Column({linePanel_, statisticsPanel_, legendPanel_, LayoutItem::Rest()}, LargeGap)));
  column->setFixedWidth(widest);
  return column;
}

QGroupBox* frmSvyGraph::MakeLinePanel()
{
  row_ = new RowEdit(this, [this](char32_t character) { return KeyInRow(character, Shared().Ask()); });
  row_->setObjectName("Text1");
  row_->setAccessibleName("Line number");
  row_->setToolTip(
      " enter the line number to plot here, or use the arrow buttons to change the current line number ");
  row_->setAlignment(Qt::AlignRight);
  constexpr int Digits = 5;
  row_->setMinimumWidth(fontMetrics().horizontalAdvance('0') * Digits + LargeGap);
  connect(row_, &QLineEdit::textChanged, this,
          [this](const QString& text) { graph_.LinePanel.Text1 = FromQt(text); });
  const auto button = [this](const char* name, const char* caption, const char* toolTip,
                             const std::function<void(SurveyGraph&)>& action) {
    return MakeButton(this, name, caption, toolTip, [this, action] { Act(action); });
  };
  rowButtons_ = {
      button("Command1", "&>>", " increment displayed line number ", NextRow),
      button("Command2", "&<<", " decrement displayed line number ", PreviousRow),
      button("Command3", "P&lot", " plot the signal data corresponding to the displayed line number ",
             [this](SurveyGraph& graph) { PlotRow(graph, State(), Shared().Ask()); }),
      button("Command4", "&Refresh", " clear the screen ", ClearRows),
      button("Command5", "&Done", " exit the line plotting mode ", LeaveLinePlots),
      button("Command6", "s&1 Stats", " compute s1 signal statistics for the current line ",
             [this](SurveyGraph& graph) { ShowRowStats1(graph, State(), Shared().Ask()); }),
      button("Command7", "s&2 Stats", " compute s2 signal statistics for the current line ",
             [this](SurveyGraph& graph) { ShowRowStats2(graph, State(), Shared().Ask()); })};
  const int arrow = fontMetrics().horizontalAdvance(">>") + 2 * LargeGap;
  rowButtons_[0]->setMaximumWidth(arrow);
  rowButtons_[1]->setMaximumWidth(arrow);
  rowButtons_[2]->setDefault(true);
  return Frame(this, "Frame1", "Line Plots",
               Column({Row({rowButtons_[1], {row_, 1}, rowButtons_[0]}), rowButtons_[2], rowButtons_[5],
                       rowButtons_[6], rowButtons_[3], rowButtons_[4]}));
}

QGroupBox* frmSvyGraph::MakeStatisticsPanel()
{
  constexpr std::array<const char*, 9> Names = {"LblT1", "Lblm1",   "Lblv1", "LblT2", "Lblm2",
                                                "Lblv2", "LblCorr", "Lblr1", "Lblr2"};
  constexpr std::size_t LinesPerBlock = 3;
  QVBoxLayout* lines = Column({}, SmallGap / 4);
  for (std::size_t i = 0; i < Names.size(); ++i) {
    statistics_.at(i) = MakeValueLabel(this, Names.at(i), "");
    if (i > 0 && i % LinesPerBlock == 0) {
      lines->addSpacing(SmallGap);
    }
    lines->addWidget(statistics_.at(i));
  }
  return Frame(this, "Frame2", "Statistics", lines);
}

QGroupBox* frmSvyGraph::MakeLegendPanel()
{
  return Frame(
      this, "Frame3", "Legend",
      Column({MakeButton(this, "Command8", "displa&y", " display the colorscale or grayscale legend ",
                         [this] { Shared().Show<frmLegend>(); })}));
}

}  // namespace veln
