#include "desktop/design/frm_mask.h"
#include "desktop/design/frm_srs.h"
#include "desktop/graphics/frm_site_map.h"
#include "desktop/graphics/frm_svy_graph.h"
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
std::function<void()> Shows(Program& program)
{
  return [&program] { program.Show<Window>(); };
}

}  // namespace

// The keys of captions are unique within their menu.
std::vector<MenuLine> frmMain::MenuLines()
{
  using enum MenuEntry;
  Program& program = program_;
  const auto help = [&program](const char* document) {
    return [&program, document] { RequestHelp(program, document); };
  };
  const auto import = [this](bool transect) { return [this, transect] { ImportSurvey(transect); }; };
  const auto viewOutput = [&program] {
    program.Try([&program] { ViewOutputFiles(program.State, program.Ask()); });
  };
  const auto gate = [&program](MenuEntry entry) {
    return [&program, entry] { return program.State.Menu.IsEnabled(entry); };
  };
  return {
      {"mnuFile", nullptr, "&File"},
      {"mnuProject", "mnuFile", "Set / Create &Project and Field ID", [this] { SetProject(); }, "",
       gate(mnuProject)},
      {"mnuImport", "mnuFile", "&Import Survey Data File", {}, "", gate(mnuImport)},
      {"mnuIGSF", "mnuImport", "Import a &Grid Survey File", import(false), "Ctrl+G", gate(mnuImport)},
      {"mnuITSF", "mnuImport", "Import a &Transect Survey File", import(true), "Ctrl+T", gate(mnuImport)},
      {"mnuVPOF", "mnuFile", "&View / Print Output Files", viewOutput, "", gate(mnuVPOF)},
      {"mnuExit", "mnuFile", "E&xit", [this] { Exit(); }, "Ctrl+Q"},
      {"mnuG", nullptr, "&Graph"},
      {"mnuSG", "mnuG", "&Open Graphics Window", Shows<frmSvyGraph>(program), "", gate(mnuSG)},
      {"mnuA", nullptr, "&Analysis"},
      {"mnuStats", "mnuA", "&Basic Statistics", Shows<frmBasicStats>(program), "", gate(mnuStats)},
      {"mnuSigD", "mnuA", "Signal &Decorrelation", Shows<frmSigDecorr>(program), "", gate(mnuSigD)},
      {"mnuSigV", "mnuA", "Signal &Validation", Shows<frmSigVal>(program), "", gate(mnuSigV)},
      {"mnuD", nullptr, "&Design"},
      {"mnuSRS", "mnuD", "&Calculate SRS Sample Design", Shows<frmSRS>(program), "", gate(mnuSRS)},
      {"mnuMask", "mnuD", "&Manual Sample Site Selection", Shows<frmMask>(program), "", gate(mnuMask)},
      {"mnuSHowMap", "mnuD", "&Display Sample Site Map", Shows<frmSiteMap>(program), "", gate(mnuSHowMap)},
      {"mnuHelp", nullptr, "&Help"},
      {"mnuAbout", "mnuHelp", "&About VELN-QTRD ", Shows<frmAbout>(program)},
      {"mnuEIC", "mnuHelp", "VELN &Interface Controls", Shows<frmFileIO>(program)},
      {"mnuMHelp", "mnuHelp", "&OnLine Help"},
      {"mnuMH1", "mnuMHelp", "&What is VELN-QTRD", help("hdoc14")},
      {"mnuMH2", "mnuMHelp", "&Navigating the Main Menu", help("hdoc15"), "F1"},
      {"mnuMH3", "mnuMHelp", "&Frequently Asked Questions", help("hdoc16")},
  };
}

}  // namespace veln
