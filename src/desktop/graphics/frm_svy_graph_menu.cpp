// The menus of frmSvyGraph.
#include "desktop/graphics/frm_igc.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/graphics/overlay_chooser.h"
#include "desktop/graphics/picture_actions.h"
#include "desktop/program/help_request.h"
#include "graphics/colour_maps.h"

namespace veln {

/// The keys of captions are unique within their menu.
std::vector<MenuLine> frmSvyGraph::PlotLines()
{
  using enum GraphEntry;
  const auto open = [this](GraphEntry entry) { return [this, entry] { return graph_.IsEnabled(entry); }; };
  const auto heading = [&open](const char* name, const char* caption, GraphEntry entry) {
    return MenuLine{name, "mnuG", caption, {}, "", open(entry)};
  };
  const auto plot = [this, &open](const char* name, const char* menu, const char* caption, GraphEntry entry) {
    return MenuLine{name, menu, caption, [this, entry] { Select(entry); }, "", open(entry)};
  };
  return {
      {"mnuG", nullptr, "&Graphics"},
      plot("mnuGrid", "mnuG", "Survey &Grid", mnuGrid),
      heading("mnuScatter", "&Scatter Plots", mnuScatter),
      plot("mnuSs1x", "mnuScatter", "s1 vs &x", mnuSs1x),
      plot("mnuSs1y", "mnuScatter", "s1 vs &y", mnuSs1y),
      plot("mnuSs2x", "mnuScatter", "s&2 vs x", mnuSs2x),
      plot("mnuSs2y", "mnuScatter", "s2 &vs y", mnuSs2y),
      plot("mnuSs1s2", "mnuScatter", "&s1 vs s2", mnuSs1s2),
      plot("mnuSz1z2", "mnuScatter", "&rsd plot", mnuSz1z2),
      heading("mnuLine", "&Line Plots", mnuLine),
      plot("mnuLs1", "mnuLine", "s&1 by row", mnuLs1),
      plot("mnuLs2", "mnuLine", "s&2 by row", mnuLs2),
      plot("mnuLs1s2", "mnuLine", "s1 &and s2 by row", mnuLs1s2),
      heading("mnuHist", "&Histograms", mnuHist),
      plot("mnuHs1", "mnuHist", "&s1", mnuHs1),
      plot("mnuHs2", "mnuHist", "s&2", mnuHs2),
      plot("mnuHz1", "mnuHist", "z&1", mnuHz1),
      plot("mnuHz2", "mnuHist", "&z2", mnuHz2),
      plot("mnuHta", "mnuHist", "&trans analysis", mnuHta),
      heading("mnuCSG", "&ColorScale Grids", mnuCSG),
      plot("mnuVs1", "mnuCSG", "&s1", mnuVs1),
      plot("mnuVs2", "mnuCSG", "s&2", mnuVs2),
      plot("mnuVz1", "mnuCSG", "z&1", mnuVz1),
      plot("mnuVz2", "mnuCSG", "&z2", mnuVz2),
      plot("mnuVta", "mnuCSG", "&trans analysis", mnuVta),
      {"mnuOSS", "mnuCSG", "&overlay sample sites", [this] { Shared().Show<OverlayChooser>(); }, "",
       open(mnuOSS)},
  };
}

void frmSvyGraph::MakeMenus()
{
  const auto help = [this](const char* document) {
    return [this, document] { RequestHelp(Shared(), document); };
  };
  const std::vector<MenuLine> others = {
      {"", "mnuG"},
      {"savePicture", "mnuG", "Save &picture...", [this] { SavePicture(); }, "Ctrl+S"},
      {"copyPicture", "mnuG", "C&opy", [this] { Shared().Try([this] { CopyPicture(CurrentPicture()); }); },
       "Ctrl+C"},
      {"mnuO", nullptr, "&Options"},
      {"mnuIGC", "mnuO", "&Initialize Graphic Components", [this] { Shared().Show<frmIGC>(); }},
      {"mnuPCT", "mnuO", "&Perform Coordinate Translation", [this] { Translate(); }},
      {"", "mnuO"},
      {"scaleBar",
       "mnuO",
       "&Scale bar",
       [this] { Toggle(&PlotOptions::ScaleBar); },
       "",
       {},
       [this] { return graph_.Options.ScaleBar; }},
      {"northArrow", "mnuO", "&North arrow", [this] { Toggle(&PlotOptions::NorthArrow); }, "",
       [this] { return NorthArrowOffered(State()); }, [this] { return graph_.Options.NorthArrow; }},
      {"safeColours",
       "mnuO",
       "Colour-&blind-safe map colours",
       [this] {
         Act([this](SurveyGraph& graph) {
           SetColourBlindSafe(graph, State(), !graph.Options.ColourBlindSafe);
         });
       },
       "",
       {},
       [this] { return graph_.Options.ColourBlindSafe; }},
      {"mnuP", nullptr, "&Print"},
      {"mnuPrint", "mnuP", "&Print Current Graph",
       [this] { PrintPicture(Shared(), this, CurrentPicture().Page); }, "Ctrl+P"},
      {"printPreview", "mnuP", "Print Pre&view", [this] { PreviewPicture(this, CurrentPicture().Page); }},
      {"mnuHelp", nullptr, "&Help"},
      {"mnuGHelp", "mnuHelp", "&OnLine Help"},
      {"mnuGH1", "mnuGHelp", "&Navigating the Graphics Menu", help("hdoc12")},
      {"mnuGH2", "mnuGHelp", "Graph &Descriptions / Information", help("hdoc13")},
      {"mnuR", nullptr, "E&xit"},
      {"mnuReturn", "mnuR", "&Return to Main VELN Program Menu", Leaves()},
  };
  std::vector<MenuLine> lines = PlotLines();
  lines.insert(lines.end(), others.begin(), others.end());
  SetMenus(lines);
}

}  // namespace veln
