#include "graph_fields.h"
#include "graphics/drawing_svg.h"
#include "graphics/plot_page.h"

namespace veln {
namespace {

using enum GraphEntry;

/// A picture of the small example and the file that shows it as it was looked at.
struct GoldenPicture {
  std::string File;
  std::function<std::string(SurveyGraph& graph, SurveyState& state)> Draw;
};

void PrintTo(const GoldenPicture& picture, std::ostream* out)
{
  *out << picture.File;
}

std::string PageOf(const SurveyGraph& graph)
{
  return SvgText(PlotPage(graph.Shown), graph.Shown.Title);
}

GoldenPicture Selected(const std::string& file, GraphEntry entry)
{
  return {file, [entry](SurveyGraph& graph, SurveyState& state) {
            DitherGenerator dither;
            SelectGraph(graph, state, entry, dither);
            return PageOf(graph);
          }};
}

GoldenPicture Rows(const std::string& file, GraphEntry entry)
{
  return {file, [entry](SurveyGraph& graph, SurveyState& state) {
            ScriptedDialogs dialogs;
            StartLinePlots(graph, entry);
            graph.LinePanel.Text1 = "4";
            PlotRow(graph, state, dialogs);
            if (graph.LineMode != 2) {
              ShowRowStats1(graph, state, dialogs);
            }
            if (graph.LineMode != 1) {
              ShowRowStats2(graph, state, dialogs);
            }
            return PageOf(graph);
          }};
}

std::string DrawOverlay(SurveyGraph& graph, SurveyState& state)
{
  SetCCDDP(graph, {4, 2, 6});
  InitCSG(graph, state);
  ShowColourMap(graph, state, GraphEntry::mnuVs1);
  CSOver(graph, state, ExistingDesigns(state));
  return SvgText(PlotPage(graph.Shown, {}, {true, true}), graph.Shown.Title);
}

std::string DrawLabelled(SurveyGraph& graph, SurveyState& state)
{
  MakeSSMap(graph, state, ExistingDesigns(state));
  return PageOf(graph);
}

std::string DrawOneSignalRsd(SurveyGraph& /*graph*/, SurveyState& /*state*/)
{
  SurveyState one = DecorrelatedSurvey(TransectSurvey(5, 12, 1, 3));
  one.SiteStatus[40] = site_status::Outlier;
  DitherGenerator dither;
  SurveyGraph graph = OpenGraph(one);
  ShowRsdPlot(graph, one, dither);
  return PageOf(graph);
}

std::string DrawSites(SurveyGraph& /*graph*/, SurveyState& state)
{
  SiteMapForm form = LoadSiteMap(state);
  ShowDesignMap(form, state, 1);
  return SvgText(SiteMapPage(form), form.lblSMT);
}

class GoldenPictures : public testing::TestWithParam<GoldenPicture> {};

TEST_P(GoldenPictures, AreAsTheyWereLookedAt)
{
  SurveyState state = SmallExample();
  SurveyGraph graph = OpenGraph(state);
  const std::string svg = GetParam().Draw(graph, state);
  const std::string name = GetParam().File + ".svg";
  const auto golden = std::filesystem::path(VELN_TEST_DATA) / name;
  if (!std::filesystem::exists(golden) || ReadText(golden) != svg) {
    const auto found = std::filesystem::path(testing::TempDir()) / name;
    WriteText(found, svg);
    FAIL() << "not as in " << golden << ": look at " << found;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Of, GoldenPictures,
    testing::Values(Selected("grid", mnuGrid), Selected("s1_x", mnuSs1x), Selected("s1_y", mnuSs1y),
                    Selected("s2_x", mnuSs2x), Selected("s2_y", mnuSs2y), Selected("s1_s2", mnuSs1s2),
                    Selected("rsd", mnuSz1z2), GoldenPicture{"rsd_one_signal", DrawOneSignalRsd},
                    Rows("line_s1", mnuLs1), Rows("line_s2", mnuLs2), Rows("line_s1s2", mnuLs1s2),
                    Selected("hist_s1", mnuHs1), Selected("hist_s2", mnuHs2), Selected("hist_z1", mnuHz1),
                    Selected("hist_z2", mnuHz2), Selected("hist_ta", mnuHta), Selected("map_s1", mnuVs1),
                    Selected("map_s2", mnuVs2), Selected("map_z1", mnuVz1), Selected("map_z2", mnuVz2),
                    Selected("map_ta", mnuVta), GoldenPicture{"map_overlay", DrawOverlay},
                    GoldenPicture{"map_labelled", DrawLabelled}, GoldenPicture{"sites", DrawSites}),
    [](const auto& picture) { return picture.param.File; });

}  // namespace
}  // namespace veln
