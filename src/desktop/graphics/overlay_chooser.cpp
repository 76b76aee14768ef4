#include "desktop/graphics/overlay_chooser.h"

#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "graphics/colour_maps.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace veln {

OverlayChooser::OverlayChooser(Program& program, QWidget* parent)
    : ChildWindow(program, frmSvyGraph::OwnerOfCompanions(program, parent),
                  {Name, "Overlay Sample Sites", {2000, 1500}, "", {}, program.Find<frmSvyGraph>()})
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(SmallGap);
  layout->addWidget(MakeText(this, "designsLabel", "Sample designs to show:"));
  const DesignFlags existing = ExistingDesigns(program.State);
  for (std::size_t i = 0; i < designs_.size(); ++i) {
    if (!existing.at(i)) {
      continue;
    }
    const QString number = QString::number(i + 1);
    const bool manual = i + 1 == designs_.size();
    designs_.at(i) = MakeCheck(this, ("design" + number).toUtf8(),
                               manual ? "&User Generated Design" : "SRS Design &" + number);
    designs_.at(i)->setChecked(true);
    layout->addWidget(designs_.at(i));
    connect(designs_.at(i), &QCheckBox::toggled, this, [this] { Mirror(); });
  }
  layout->addSpacing(SmallGap);
  layout->addStretch();
  QPushButton* cancel = MakeButton(this, "cancel", "&Cancel", " close without showing any sites ");
  map_ = MakeButton(this, "labelledMap", "&Labelled site map",
                    " draw a map of the chosen sites with their site numbers ");
  overlay_ = MakeButton(this, "overlay", "&Overlay on this map", " mark the chosen sites on the map shown ");
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cancel);
  buttons->addWidget(map_);
  buttons->addWidget(overlay_);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(map_, &QPushButton::clicked, this, [this] { MakeMap(); });
  connect(overlay_, &QPushButton::clicked, this, [this] { Overlay(); });
  Mirror();
}

void OverlayChooser::Mirror()
{
  const auto* window = Shared().Find<frmSvyGraph>();
  if (window == nullptr || !window->Graph().IsEnabled(GraphEntry::mnuOSS)) {
    Unload();  // a plot of another kind was chosen meanwhile
    return;
  }
  const DesignFlags chosen = Chosen();
  const bool any = std::ranges::find(chosen, true) != chosen.end();
  overlay_->setEnabled(any && window->Graph().OverlayAllowed());
  map_->setDefault(!window->Graph().OverlayAllowed());
  overlay_->setDefault(window->Graph().OverlayAllowed());
  for (QCheckBox* design : designs_) {
    if (design != nullptr) {
      ShowChoice(*design, design->isChecked());
    }
  }
}

DesignFlags OverlayChooser::Chosen() const
{
  DesignFlags chosen{};
  for (std::size_t i = 0; i < chosen.size(); ++i) {
    chosen.at(i) = designs_.at(i) != nullptr && designs_.at(i)->isChecked();
  }
  return chosen;
}

void OverlayChooser::Overlay()
{
  const DesignFlags chosen = Chosen();
  auto* window = Shared().Find<frmSvyGraph>();
  Unload();
  if (window != nullptr) {
    window->Act([&](SurveyGraph& graph) { CSOver(graph, State(), chosen); });
  }
}

void OverlayChooser::MakeMap()
{
  const DesignFlags chosen = Chosen();
  auto* window = Shared().Find<frmSvyGraph>();
  Unload();
  if (window != nullptr) {
    window->Act([&](SurveyGraph& graph) { MakeSSMap(graph, State(), chosen); },
                frmSvyGraph::Effect::Replaces);
  }
}

}  // namespace veln
