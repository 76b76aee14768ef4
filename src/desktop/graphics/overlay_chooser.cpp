#include "desktop/graphics/overlay_chooser.h"

#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "graphics/colour_maps.h"

#include <algorithm>

namespace veln {

OverlayChooser::OverlayChooser(Program& program, QWidget* parent)
    : ChildWindow(program, frmSvyGraph::OwnerOfCompanions(program, parent),
                  {Name, "Overlay Sample Sites", "", {}, program.Find<frmSvyGraph>(), QPoint(2000, 1500)}),
      chosen_(ExistingDesigns(program.State))
{
  QVBoxLayout* designs = Column({MakeText(this, "designsLabel", "Sample designs to show:")});
  for (std::size_t i = 0; i < designs_.size(); ++i) {
    if (!chosen_.at(i)) {
      continue;
    }
    const std::string number = std::to_string(i + 1);
    const bool manual = i + 1 == designs_.size();
    designs_.at(i) =
        MakeCheck(this, ("design" + number).c_str(),
                  manual ? "&User Generated Design" : "SRS Design &" + ToQt(number), "", [this, i](bool on) {
                    chosen_.at(i) = on;
                    Mirror();
                  });
    designs->addWidget(designs_.at(i));
  }
  QPushButton* cancel = MakeButton(this, "cancel", "&Cancel", " close without showing any sites ", Leaves());
  map_ = MakeButton(this, "labelledMap", "&Labelled site map",
                    " draw a map of the chosen sites with their site numbers ", [this] { MakeMap(); });
  overlay_ = MakeButton(this, "overlay", "&Overlay on this map", " mark the chosen sites on the map shown ",
                        [this] { Overlay(); });
  SetColumn(*this, {designs, LayoutItem::Rest(), ButtonRow({nullptr, cancel, map_, overlay_})});
  Mirror();
}

void OverlayChooser::Mirror()
{
  const auto* window = Shared().Find<frmSvyGraph>();
  if (window == nullptr || !window->Graph().IsEnabled(GraphEntry::mnuOSS)) {
    Unload();  // a plot of another kind was chosen meanwhile
    return;
  }
  const bool any = std::ranges::find(chosen_, true) != chosen_.end();
  overlay_->setEnabled(any && window->Graph().OverlayAllowed());
  map_->setDefault(!window->Graph().OverlayAllowed());
  overlay_->setDefault(window->Graph().OverlayAllowed());
  for (std::size_t i = 0; i < designs_.size(); ++i) {
    if (designs_.at(i) != nullptr) {
      ShowChoice(*designs_.at(i), chosen_.at(i));
    }
  }
}

void OverlayChooser::Overlay()
{
  auto* window = Shared().Find<frmSvyGraph>();
  Unload();
  if (window != nullptr) {
    window->Act([&](SurveyGraph& graph) { CSOver(graph, State(), chosen_); });
  }
}

void OverlayChooser::MakeMap()
{
  auto* window = Shared().Find<frmSvyGraph>();
  Unload();
  if (window != nullptr) {
    window->Act([&](SurveyGraph& graph) { MakeSSMap(graph, State(), chosen_); },
                frmSvyGraph::Effect::Replaces);
  }
}

}  // namespace veln
