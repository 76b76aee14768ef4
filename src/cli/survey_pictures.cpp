#include "cli/survey_pictures.h"

#include "cli/console_dialogs.h"
#include "forms/igc_form.h"
#include "graphics/drawing_svg.h"
#include "graphics/line_plots.h"
#include "graphics/plot_page.h"
#include "graphics/site_map.h"
#include "toolkit/refusal.h"

namespace veln {

namespace {

/// What the graphics window tells its user ends the run here.
class RefusingDialogs : public SilentDialogs {
 public:
  void Inform(const std::string& text) override { throw Refusal(text); }
};

/// The graphics window with the options of the command line put in force.
SurveyGraph OpenGraph(SurveyState& state, const PictureSettings& settings)
{
  SilentDialogs silent;
  SurveyGraph graph = LoadSurveyGraph(state);
  IgcForm form = LoadIgcForm(graph, state);
  TickLinePlots(form, true);
  ChooseDirection(form, settings.NorthSouth ? FieldAxis::Y : FieldAxis::X);
  ChoosePalette(form, settings.Choices.PaletteChoice);
  ChoosePlaces(form, settings.Choices.DecimalPlaces);
  MoveSymbolSize(form, settings.Choices.SymbolSize);
  form.Check4 = settings.HighlightMasked;
  form.Check5 = settings.HighlightSamples;
  InitializeGraphics(form, graph, state, silent);
  return graph;
}

/// Plots a row and presses the buttons for its statistics.
void DrawRow(SurveyGraph& graph, const SurveyState& state, const std::string& row)
{
  RefusingDialogs dialogs;
  graph.LinePanel.Text1 = row;
  PlotRow(graph, state, dialogs);
  if (graph.LinePanel.Command6Enabled) {
    ShowRowStats1(graph, state, dialogs);
  }
  if (graph.LinePanel.Command7Enabled) {
    ShowRowStats2(graph, state, dialogs);
  }
}

std::string DrawSites(const SurveyState& state, int design)
{
  SiteMapForm form = LoadSiteMap(state);
  ShowDesignMap(form, state, design);
  return SvgText(SiteMapPage(form), form.lblSMT);
}

}  // namespace

std::vector<ComposedFile> ComposePictures(SurveyState& state, const std::vector<PictureOption>& pictures,
                                          const PictureSettings& settings)
{
  std::vector<ComposedFile> files;
  SurveyGraph graph = OpenGraph(state, settings);
  DitherGenerator dither;
  for (const PictureOption& picture : pictures) {
    if (picture.SiteMapDesign != 0) {
      files.push_back({picture.File, DrawSites(state, picture.SiteMapDesign)});
      continue;
    }
    SelectGraph(graph, state, picture.Entry, dither);
    if (!picture.Row.empty()) {
      DrawRow(graph, state, picture.Row);
    }
    files.push_back({picture.File, SvgText(PlotPage(graph.Shown), graph.Shown.Title)});
  }
  return files;
}

}  // namespace veln
