#include "desktop/graphics/frm_svy_graph.h"

#include "desktop/graphics/frm_igc.h"
#include "desktop/graphics/frm_legend.h"
#include "desktop/graphics/frm_pct.h"
#include "desktop/graphics/overlay_chooser.h"
#include "desktop/graphics/picture_dialog.h"
#include "desktop/graphics/plot_board.h"
#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "graphics/colour_maps.h"
#include "graphics/plot_page.h"

namespace veln {

namespace {

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
  Shared().CloseAll<frmIGC, frmPCT, frmLegend, OverlayChooser>();
  Unload();
}

void frmSvyGraph::Select(GraphEntry entry)
{
  Act([&](SurveyGraph& graph) { SelectGraph(graph, State(), entry, Shared().Dither); }, Effect::Replaces);
}

void frmSvyGraph::Translate()
{
  if (StartTranslation(graph_, Shared().Ask())) {
    MirrorPlot(true);
    Mirror();
    Shared().Show<frmPCT>();
  }
}

void frmSvyGraph::Toggle(bool PlotOptions::* shown)
{
  graph_.Options.*shown = !(graph_.Options.*shown);
  MirrorPlot(false);
  MirrorMenus();
}

void frmSvyGraph::SavePicture()
{
  Shared().ShowWith<PictureDialog>(
      [this](QWidget* /*main*/) { return new PictureDialog(Shared(), this, CurrentPicture(), "plot"); });
}

MapFurniture frmSvyGraph::Furniture() const
{
  return {graph_.Options.ScaleBar, graph_.Options.NorthArrow && NorthArrowOffered(State())};
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
  ShowText(*row_, line.Text1);
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
