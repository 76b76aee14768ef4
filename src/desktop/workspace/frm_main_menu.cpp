#include "desktop/design/frm_mask.h"
#include "desktop/design/frm_srs.h"
#include "desktop/graphics/frm_site_map.h"
#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/program/child_window.h"
#include "desktop/program/help_request.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "desktop/signal/frm_sig_val.h"
#include "desktop/survey/frm_basic_stats.h"
#include "desktop/workspace/frm_about.h"
#include "desktop/workspace/frm_file_io.h"
#include "desktop/workspace/frm_main.h"
#include "forms/output_view.h"

namespace veln {

namespace {

template <class Window>
void Open(frmMain& main)
{
  main.Shared().Show<Window>();
}

void ViewOutput(frmMain& main)
{
  main.Shared().Try([&main] { ViewOutputFiles(main.Shared().State, main.Shared().Ask()); });
}

using enum MenuEntry;

// The keys of captions are unique within their menu.
const std::array<MainMenuLine, 24> Lines = {{
    {"mnuFile", nullptr, "&File"},
    {"mnuProject", "mnuFile", "Set / Create &Project and Field ID", mnuProject,
     [](frmMain& main) { main.SetProject(); }},
    {"mnuImport", "mnuFile", "&Import Survey Data File", mnuImport},
    {"mnuIGSF", "mnuImport", "Import a &Grid Survey File", mnuImport,
     [](frmMain& main) { main.ImportSurvey(false); }, "Ctrl+G"},
    {"mnuITSF", "mnuImport", "Import a &Transect Survey File", mnuImport,
     [](frmMain& main) { main.ImportSurvey(true); }, "Ctrl+T"},
    {"mnuVPOF", "mnuFile", "&View / Print Output Files", mnuVPOF, ViewOutput},
    {"mnuExit", "mnuFile", "E&xit", {}, [](frmMain& main) { main.Exit(); }, "Ctrl+Q"},
    {"mnuG", nullptr, "&Graph"},
    {"mnuSG", "mnuG", "&Open Graphics Window", mnuSG, Open<frmSvyGraph>},
    {"mnuA", nullptr, "&Analysis"},
    {"mnuStats", "mnuA", "&Basic Statistics", mnuStats, Open<frmBasicStats>},
    {"mnuSigD", "mnuA", "Signal &Decorrelation", mnuSigD, Open<frmSigDecorr>},
    {"mnuSigV", "mnuA", "Signal &Validation", mnuSigV, Open<frmSigVal>},
    {"mnuD", nullptr, "&Design"},
    {"mnuSRS", "mnuD", "&Calculate SRS Sample Design", mnuSRS, Open<frmSRS>},
    {"mnuMask", "mnuD", "&Manual Sample Site Selection", mnuMask, Open<frmMask>},
    {"mnuSHowMap", "mnuD", "&Display Sample Site Map", mnuSHowMap, Open<frmSiteMap>},
    {"mnuHelp", nullptr, "&Help"},
    {"mnuAbout", "mnuHelp", "&About VELN-QTRD ", {}, Open<frmAbout>},
    {"mnuEIC", "mnuHelp", "VELN &Interface Controls", {}, Open<frmFileIO>},
    {"mnuMHelp", "mnuHelp", "&OnLine Help"},
    {"mnuMH1",
     "mnuMHelp",
     "&What is VELN-QTRD",
     {},
     [](frmMain& main) { RequestHelp(main.Shared(), "hdoc14"); }},
    {"mnuMH2",
     "mnuMHelp",
     "&Navigating the Main Menu",
     {},
     [](frmMain& main) { RequestHelp(main.Shared(), "hdoc15"); },
     "F1"},
    {"mnuMH3",
     "mnuMHelp",
     "&Frequently Asked Questions",
     {},
     [](frmMain& main) { RequestHelp(main.Shared(), "hdoc16"); }},
}};

}  // namespace

std::span<const MainMenuLine> MainMenu()
{
  return Lines;
}

}  // namespace veln
