#include "desktop/graphics/frm_svy_graph.h"

#include "desktop/graphics/frm_igc.h"
#include "desktop/graphics/frm_legend.h"
#include "desktop/graphics/frm_pct.h"
#include "desktop/graphics/overlay_chooser.h"
#include "desktop/graphics/picture_actions.h"
#include "desktop/graphics/picture_dialog.h"
#include "desktop/graphics/plot_board.h"
#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/controls.h"
#include "desktop/program/help_request.h"
#include "graphics/colour_maps.h"
#include "graphics/plot_page.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace veln {

namespace {

template <class Window>
void CloseCompanion(Program& program)
{
  if (auto* window = program.Find<Window>()) {
    window->Unload();
  }
}

/// Whether two plots have the same values at their ticks.
bool SameAxes(const std::pair<PlotAxis, PlotAxis>& before, const Plot& now)
{
  const auto same = [](const PlotAxis& a, const PlotAxis& b) { return a.Range == b.Range; };
  return same(before.first, now.AxisX) && same(before.second, now.AxisY);
}

}  // namespace

QWidget* frmSvyGraph::OwnerOfCompanions(const Program& program, QWidget* main)
{
  auto* window = program.Find<frmSvyGraph>();
  return window != nullptr ? window : main;
}

void frmSvyGraph::Act(const std::function<void(SurveyGraph&)>& action, Effect effect)
{
  const std::pair axes(graph_.Shown.AxisX, graph_.Shown.AxisY);
  if (graph_.Shown.Sites.empty()) {
    deletedSites_ = State().DeletedSiteCount;
  }
  const bool done = Shared().Try([&] {
    const BusyPointer busy;
    action(graph_);
  });
  const bool replaced = done && effect == Effect::Replaces;
  if (replaced) {
    deletedSites_ = State().DeletedSiteCount;
  }
  MirrorPlot(replaced || !SameAxes(axes, graph_.Shown));
  Mirror();
}

void frmSvyGraph::WayOut()
{
  CloseCompanion<frmIGC>(Shared());
  CloseCompanion<frmPCT>(Shared());
  CloseCompanion<frmLegend>(Shared());
  CloseCompanion<OverlayChooser>(Shared());
  Unload();
}

void frmSvyGraph::Select(GraphEntry entry)
{
  Act([&](SurveyGraph& graph) { SelectGraph(graph, State(), entry, Shared().Dither); }, Effect::Replaces);
}

void frmSvyGraph::ChooseOverlay()
{
  Shared().Show<OverlayChooser>();
}

void frmSvyGraph::InitializeGraphics()
{
  Shared().Show<frmIGC>();
}

void frmSvyGraph::Translate()
{
  if (StartTranslation(graph_, Shared().Ask())) {
    MirrorPlot(true);
    Mirror();
    Shared().Show<frmPCT>();
  }
}

void frmSvyGraph::ToggleColours()
{
  Act([this](SurveyGraph& graph) { SetColourBlindSafe(graph, State(), safeColours_->isChecked()); });
}

void frmSvyGraph::RedrawFurniture()
{
  graph_.Options.ScaleBar = scaleBar_->isChecked();
  graph_.Options.NorthArrow = northArrow_->isChecked();
  MirrorPlot(false);
}

void frmSvyGraph::SavePicture()
{
  Shared().ShowWith<PictureDialog>(
      [this](QWidget* /*main*/) { return new PictureDialog(Shared(), this, CurrentPicture(), "plot"); });
}

void frmSvyGraph::Copy()
{
  Shared().Try([this] { CopyPicture(CurrentPicture()); });
}

void frmSvyGraph::Print()
{
  PrintPicture(Shared(), this, CurrentPicture().Page);
}

void frmSvyGraph::Preview()
{
  PreviewPicture(this, CurrentPicture().Page);
}

void frmSvyGraph::HelpOnMenu()
{
  RequestHelp(Shared(), "hdoc12");
}

void frmSvyGraph::HelpOnGraphs()
{
  RequestHelp(Shared(), "hdoc13");
}

MapFurniture frmSvyGraph::Furniture() const
{
  return {scaleBar_->isChecked(), northArrow_->isChecked() && northArrow_->isEnabled()};
}

Picture frmSvyGraph::CurrentPicture() const
{
  return {PlotPage(graph_.Shown, board_->Pane().View(), Furniture()), graph_.Shown.Title};
}

void frmSvyGraph::Mirror()
{
  MirrorMenus();
  MirrorPanels();
  if (auto* chooser = Shared().Find<OverlayChooser>()) {
    chooser->Mirror();
  }
}

void frmSvyGraph::MirrorPanels()
{
  linePanel_->setVisible(graph_.Shown.LinePanel);
  statisticsPanel_->setVisible(graph_.Shown.StatisticsPanel);
  legendPanel_->setVisible(graph_.Shown.LegendPanel);
  const LinePanelState& line = graph_.LinePanel;
  if (row_->text() != ToQt(line.Text1)) {
    row_->setText(ToQt(line.Text1));
  }
  rowButtons_[0]->setEnabled(line.Command1Enabled);
  rowButtons_[1]->setEnabled(line.Command2Enabled);
  rowButtons_[5]->setEnabled(line.Command6Enabled);
  rowButtons_[6]->setEnabled(line.Command7Enabled);
  const PlotStatistics& texts = graph_.Shown.Statistics;
  const std::array<const std::string*, 9> shown = {&texts.LblT1,   &texts.Lblm1, &texts.Lblv1,
                                                   &texts.LblT2,   &texts.Lblm2, &texts.Lblv2,
                                                   &texts.LblCorr, &texts.Lblr1, &texts.Lblr2};
  for (std::size_t i = 0; i < shown.size(); ++i) {
    ShowValue(*statistics_.at(i), ToQt(*shown.at(i)));
  }
}

void frmSvyGraph::MirrorPlot(bool fit)
{
  northArrow_->setEnabled(NorthArrowOffered(State()));
  board_->Show(graph_.Shown, Furniture(), fit);
  ForgetDeletedSites();
}

/// A plot stays when outliers are deleted, but its sites are no longer those of the survey.
void frmSvyGraph::ForgetDeletedSites()
{
  if (State().DeletedSiteCount != deletedSites_) {
    board_->Pane().ForgetSites();
  }
}

}  // namespace veln
