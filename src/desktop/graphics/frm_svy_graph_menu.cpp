// The menus of frmSvyGraph.
#include "desktop/graphics/frm_svy_graph.h"

#include <QAction>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <map>

namespace veln {

/// A submenu, or an entry in one that stands before it.
struct frmSvyGraph::MenuLine {
  const char* Name;  ///< empty for a line between entries
  const char* Menu;  ///< the submenu it stands in; null for the menu bar
  const char* Caption;
  std::optional<GraphEntry> Gate = std::nullopt;  ///< what enables it; without one it always is
  void (frmSvyGraph::*Action)() = nullptr;        ///< none for a submenu, or for one that selects its gate
  const char* Shortcut = "";
  bool Checkable = false;

  [[nodiscard]] bool IsLine() const { return *Name == '\0'; }
  [[nodiscard]] bool IsSubmenu() const
  {
    using enum GraphEntry;
    const bool heading = Gate == mnuScatter || Gate == mnuLine || Gate == mnuHist || Gate == mnuCSG;
    return heading || (!IsLine() && !Gate && Action == nullptr);
  }
};

/// The keys of captions are unique within their menu.
std::span<const frmSvyGraph::MenuLine> frmSvyGraph::Menu()
{
  using enum GraphEntry;
  static constexpr std::array<MenuLine, 45> Lines = {{
      {"mnuG", nullptr, "&Graphics"},
      {"mnuGrid", "mnuG", "Survey &Grid", mnuGrid},
      {"mnuScatter", "mnuG", "&Scatter Plots", mnuScatter},
      {"mnuSs1x", "mnuScatter", "s1 vs &x", mnuSs1x},
      {"mnuSs1y", "mnuScatter", "s1 vs &y", mnuSs1y},
      {"mnuSs2x", "mnuScatter", "s&2 vs x", mnuSs2x},
      {"mnuSs2y", "mnuScatter", "s2 &vs y", mnuSs2y},
      {"mnuSs1s2", "mnuScatter", "&s1 vs s2", mnuSs1s2},
      {"mnuSz1z2", "mnuScatter", "&rsd plot", mnuSz1z2},
      {"mnuLine", "mnuG", "&Line Plots", mnuLine},
      {"mnuLs1", "mnuLine", "s&1 by row", mnuLs1},
      {"mnuLs2", "mnuLine", "s&2 by row", mnuLs2},
      {"mnuLs1s2", "mnuLine", "s1 &and s2 by row", mnuLs1s2},
      {"mnuHist", "mnuG", "&Histograms", mnuHist},
      {"mnuHs1", "mnuHist", "&s1", mnuHs1},
      {"mnuHs2", "mnuHist", "s&2", mnuHs2},
      {"mnuHz1", "mnuHist", "z&1", mnuHz1},
      {"mnuHz2", "mnuHist", "&z2", mnuHz2},
      {"mnuHta", "mnuHist", "&trans analysis", mnuHta},
      {"mnuCSG", "mnuG", "&ColorScale Grids", mnuCSG},
      {"mnuVs1", "mnuCSG", "&s1", mnuVs1},
      {"mnuVs2", "mnuCSG", "s&2", mnuVs2},
      {"mnuVz1", "mnuCSG", "z&1", mnuVz1},
      {"mnuVz2", "mnuCSG", "&z2", mnuVz2},
      {"mnuVta", "mnuCSG", "&trans analysis", mnuVta},
      {"mnuOSS", "mnuCSG", "&overlay sample sites", mnuOSS, &frmSvyGraph::ChooseOverlay},
      {"", "mnuG", ""},
      {"savePicture", "mnuG", "Save &picture...", {}, &frmSvyGraph::SavePicture, "Ctrl+S"},
      {"copyPicture", "mnuG", "C&opy", {}, &frmSvyGraph::Copy, "Ctrl+C"},
      {"mnuO", nullptr, "&Options"},
      {"mnuIGC", "mnuO", "&Initialize Graphic Components", {}, &frmSvyGraph::InitializeGraphics},
      {"mnuPCT", "mnuO", "&Perform Coordinate Translation", {}, &frmSvyGraph::Translate},
      {"", "mnuO", ""},
      {"scaleBar", "mnuO", "&Scale bar", {}, &frmSvyGraph::RedrawFurniture, "", true},
      {"northArrow", "mnuO", "&North arrow", {}, &frmSvyGraph::RedrawFurniture, "", true},
      {"safeColours", "mnuO", "Colour-&blind-safe map colours", {}, &frmSvyGraph::ToggleColours, "", true},
      {"mnuP", nullptr, "&Print"},
      {"mnuPrint", "mnuP", "&Print Current Graph", {}, &frmSvyGraph::Print, "Ctrl+P"},
      {"printPreview", "mnuP", "Print Pre&view", {}, &frmSvyGraph::Preview},
      {"mnuHelp", nullptr, "&Help"},
      {"mnuGHelp", "mnuHelp", "&OnLine Help"},
      {"mnuGH1", "mnuGHelp", "&Navigating the Graphics Menu", {}, &frmSvyGraph::HelpOnMenu},
      {"mnuGH2", "mnuGHelp", "Graph &Descriptions / Information", {}, &frmSvyGraph::HelpOnGraphs},
      {"mnuR", nullptr, "E&xit"},
      {"mnuReturn", "mnuR", "&Return to Main VELN Program Menu", {}, &frmSvyGraph::WayOut},
  }};
  return Lines;
}

void frmSvyGraph::MakeMenus()
{
  auto* bar = new QMenuBar(this);
  layout()->setMenuBar(bar);
  std::map<std::string, QMenu*> menus;
  for (const MenuLine& line : Menu()) {
    QWidget* above = bar;
    if (line.Menu != nullptr) {
      above = menus.at(line.Menu);
    }
    if (line.IsSubmenu()) {
      auto* menu = new QMenu(line.Caption, above);
      menu->menuAction()->setObjectName(line.Name);
      above->addAction(menu->menuAction());
      menus[line.Name] = menu;
      continue;
    }
    QAction* action = above->addAction(line.Caption);
    if (line.IsLine()) {
      action->setSeparator(true);
      continue;
    }
    action->setObjectName(line.Name);
    action->setShortcut(QKeySequence(line.Shortcut));
    action->setCheckable(line.Checkable);
    connect(action, &QAction::triggered, this, [this, &line] {
      if (line.Action != nullptr) {
        (this->*line.Action)();
      } else {
        Select(*line.Gate);
      }
    });
  }
  scaleBar_ = findChild<QAction*>("scaleBar");
  northArrow_ = findChild<QAction*>("northArrow");
  safeColours_ = findChild<QAction*>("safeColours");
}

void frmSvyGraph::MirrorMenus()
{
  for (const MenuLine& line : Menu()) {
    if (line.Gate) {
      findChild<QAction*>(line.Name)->setEnabled(graph_.IsEnabled(*line.Gate));
    }
  }
}

}  // namespace veln
