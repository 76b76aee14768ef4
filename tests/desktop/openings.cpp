#include "desktop/openings.h"

#include "desktop/design/frm_d_list.h"
#include "desktop/design/frm_mask.h"
#include "desktop/design/frm_parse.h"
#include "desktop/design/frm_srs.h"
#include "desktop/design/frm_srs_opt.h"
#include "desktop/graphics/frm_igc.h"
#include "desktop/graphics/frm_legend.h"
#include "desktop/graphics/frm_pct.h"
#include "desktop/graphics/frm_site_map.h"
#include "desktop/graphics/overlay_chooser.h"
#include "desktop/graphics/picture_dialog.h"
#include "desktop/graphics_fixture.h"
#include "desktop/signal/frm_list.h"
#include "desktop/signal/frm_sig_decorr.h"
#include "desktop/signal/frm_sig_val.h"
#include "desktop/survey/frm_basic_stats.h"
#include "desktop/survey/frm_out_fd.h"
#include "desktop/survey/frm_structure.h"
#include "desktop/workspace/frm_about.h"
#include "desktop/workspace/frm_file_io.h"
#include "desktop/workspace/frm_help.h"
#include "desktop/workspace/frm_project.h"
#include "support/surveys.h"

namespace veln {

namespace {

RawSurvey SurveyWithOutlier()
{
  RawSurvey survey = TransectSurvey(5, 20);
  survey.Signal1[7] = 2000;
  return survey;
}

/// Sites 9, 10 and 101 are outliers.
SurveyState ThreeOutliers()
{
  SurveyState state = DecorrelatedSurvey(GridSurvey(12, 10));
  const auto mark = [&state](std::size_t site, double x, double s1, double z1) {
    state.SiteStatus[site - 1] = site_status::Outlier;
    state.CoordX[site - 1] = x;
    state.CoordY[site - 1] = 3756789.123456;
    state.Signal1[site - 1] = s1;
    state.Decorr1[site - 1] = z1;
    state.Signal2[site - 1] = 9.5;
    state.Decorr2[site - 1] = 4;
  };
  mark(9, 512345, 100.25, -3);
  mark(10, 512345.5, 99.1234, 7.5);
  mark(101, 9, 8, 0);
  return state;
}

template <class Window>
void ShowPlain(Program& program)
{
  program.Show<Window>();
}

/// Clicks a button of an open window.
template <class Window>
void Press(Program& program, const char* name)
{
  program.Find<Window>()->template findChild<QAbstractButton*>(name)->click();
}

/// The graphics window with a plot in it.
std::function<void(Program&)> Draw(GraphEntry entry)
{
  return [entry](Program& program) {
    program.Show<frmSvyGraph>()->Act(
        [&](SurveyGraph& graph) { SelectGraph(graph, program.State, entry, program.Dither); },
        frmSvyGraph::Effect::Replaces);
  };
}

template <class Window>
std::function<void(Program&)> OverMap()
{
  return [](Program& program) {
    Draw(GraphEntry::mnuVs1)(program);
    program.Show<Window>();
  };
}

void OpenLinePlots(Program& program)
{
  program.Show<frmSvyGraph>();
  program.Show<frmIGC>();
  for (const char* name : {"Check1", "Option2", "Command2"}) {
    Press<frmIGC>(program, name);
  }
  Draw(GraphEntry::mnuLs1s2)(program);
}

void ShowScores(Program& program)
{
  SelectionScores scores{{2, SelectionScope::Limited}, {}};
  scores.optval[0] = {std::nullopt, 1.5, std::nullopt, 1.32, std::nullopt, 1.3199, std::nullopt};
  scores.optval[1] = {std::nullopt, 1.2, std::nullopt, std::nullopt, std::nullopt, 12.3456, std::nullopt};
  program.Show<frmSRS>();
  program.ShowWith<frmSRSOpt>([&](QWidget* main) { return new frmSRSOpt(program, main, scores); });
}

void ShowParsing(Program& program)
{
  program.Show<frmSRS>();
  Press<frmSRS>(program, "Check3");
}

void ShowPictureDialog(Program& program)
{
  auto* owner = program.Show<frmSiteMap>();
  program.ShowWith<PictureDialog>([&](QWidget*) { return new PictureDialog(program, owner, {}, "map"); });
}

/// Opens a window and presses buttons in it.
template <class Window>
std::function<void(Program&)> After(std::vector<const char*> buttons)
{
  return [buttons](Program& program) {
    program.Show<Window>();
    for (const char* button : buttons) {
      Press<Window>(program, button);
    }
  };
}

SurveyState WithScores(SurveyState state)
{
  state.TransitionDone = true;
  state.TransitionScore.assign(static_cast<std::size_t>(state.SurveySize), 0.5);
  return state;
}

/// All sites but the first `free` are masked.
SurveyState MaskedFrom(SurveyState state, int free)
{
  std::fill(state.SiteStatus.begin() + free, state.SiteStatus.end(), site_status::Masked);
  return state;
}

}  // namespace

std::vector<Opening> Openings()
{
  const SurveyState imported = ImportedSurvey(SurveyWithOutlier());
  SurveyState logarithms = ImportedSurvey(GridSurvey(10, 10, 1));
  logarithms.LogTransform = true;
  const SurveyState decorrelated = DecorrelatedSurvey(SurveyWithOutlier());
  SurveyState saved = AcceptedSurvey(SurveyWithOutlier());
  saved.ManualDesignDone = true;
  const SurveyState accepted = AcceptedSurvey(TransectSurvey(20, 20));
  SurveyState designed = SurveyWithDesigns();
  designed.Designs[0] = {12, .98};
  designed.Designs[1] = {6, 1.105};
  return {
      {"frmMain", {}, {}},
      {"frmMain, named", NamedState(), {}},
      {"frmMain, designed", designed, {}},
      {"frmProject", {}, ShowPlain<frmProject>},
      {"frmProject, creation", {}, After<frmProject>({"Command5"})},
      {"frmFileIO", {}, ShowPlain<frmFileIO>},
      {"frmFileIO, lost",
       {},
       [](Program& program) {
         program.State.InputFilePath += "/data/gone/deeper";
         program.State.PrinterDpiFactor = 3;
         program.Show<frmFileIO>();
       }},
      {"frmAbout", {}, ShowPlain<frmAbout>},
      {"frmHelp", {}, ShowPlain<frmHelp>},
      {"frmStructure", NamedState(), ShowPlain<frmStructure>},
      {"frmStructure, transect", NamedState(),
       [](Program& program) { program.Show<frmStructure>()->SetSurveyType(true); }},
      {"frmBasicStats", imported, ShowPlain<frmBasicStats>},
      {"frmBasicStats, logarithms", logarithms, ShowPlain<frmBasicStats>},
      {"frmSigDecorr", imported, ShowPlain<frmSigDecorr>},
      {"frmSigDecorr, results", imported, After<frmSigDecorr>({"Command1"})},
      {"frmSigVal", decorrelated, ShowPlain<frmSigVal>},
      {"frmSigVal, acceptance", decorrelated, After<frmSigVal>({"Option2", "ChkEB1", "Check2"})},
      {"frmSigVal, grid", DecorrelatedSurvey(GridSurvey(10, 10)), ShowPlain<frmSigVal>},
      {"frmList", ThreeOutliers(), ShowPlain<frmList>},
      {"frmOutFD", saved, ShowPlain<frmOutFD>},
      {"frmMask", accepted, ShowPlain<frmMask>},
      {"frmSRS", WithScores(AcceptedSurvey(TransectSurvey(250, 20))), After<frmSRS>({"Check1"})},
      {"frmSRS, finished", accepted, After<frmSRS>({"Command2"})},
      {"frmSRS, small", AcceptedSurvey(TransectSurvey(5, 20)), ShowPlain<frmSRS>},
      {"frmSRS, last", MaskedFrom(AcceptedSurvey(TransectSurvey(5, 20)), 29), ShowPlain<frmSRS>},
      {"frmParse", accepted, ShowParsing},
      {"frmDList", accepted, ShowPlain<frmDList>},
      {"frmSRSOpt", accepted, ShowScores},
      {"frmSvyGraph", designed, ShowPlain<frmSvyGraph>},
      {"frmSvyGraph, imported", ImportedSurvey(GridSurvey(10, 10, 1)), ShowPlain<frmSvyGraph>},
      {"frmSvyGraph, map", designed, Draw(GraphEntry::mnuVs1)},
      {"frmSvyGraph, lines", designed, OpenLinePlots},
      {"frmLegend", designed, OverMap<frmLegend>()},
      {"frmIGC", designed,
       [](Program& program) {
         program.Show<frmSvyGraph>();
         program.Show<frmIGC>();
       }},
      {"frmPCT", designed,
       [](Program& program) {
         program.Show<frmSvyGraph>();
         program.Show<frmPCT>();
         Press<frmPCT>(program, "Option2");
       }},
      {"frmPCT, pending", accepted,
       [](Program& program) {
         program.Show<frmSRS>();
         Press<frmSRS>(program, "Command2");
         program.Show<frmSvyGraph>();
         program.Show<frmPCT>();
         Press<frmPCT>(program, "Option3");
       }},
      {"overlayChooser", designed, OverMap<OverlayChooser>()},
      {"pictureDialog", designed, ShowPictureDialog},
      {"frmSiteMap", designed, ShowPlain<frmSiteMap>},
  };
}

}  // namespace veln
