// Pictures of the largest survey on screen and on paper: 30,000 sites.
#include "desktop/graphics/plot_pane.h"
#include "desktop/graphics/site_index.h"
#include "graphics/colour_maps.h"
#include "graphics/plot_page.h"
#include "graphics/site_text.h"
#include "render/drawing_painter.h"
#include "render/picture_file.h"
#include "survey/survey_import.h"
#include "workspace/project.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

namespace {

using namespace veln;

constexpr const char* LargestSurvey = VELN_LARGEST_SURVEY;

const SurveyState& Survey()
{
  static const SurveyState State = [] {
    SurveyState state;
    state.ProgramDir = std::filesystem::temp_directory_path();
    AcceptProject(state, "bench", "BNCH", "");
    ImportSurvey(state, {LargestSurvey, {true, true, true}, {"EMv", "EMh"}});
    return state;
  }();
  return State;
}

/// The map of s1 at the default symbol size.
const Plot& Map()
{
  static const Plot Shown = [] {
    SurveyState state = Survey();
    SurveyGraph graph = LoadSurveyGraph(state);
    ShowColourMap(graph, state, GraphEntry::mnuVs1);
    return graph.Shown;
  }();
  return Shown;
}

/// A screen of 1200 by 800 pixels, or twice that at 200 %, and the map stretched over it.
struct Screen {
  explicit Screen(int ratio) : Image(1200 * ratio, 800 * ratio, QImage::Format_RGB32), Ratio(ratio)
  {
    Image.fill(Qt::white);
    Frame = {QRectF(Image.rect()), static_cast<double>(ratio)};
  }
  QImage Image;
  DrawingFrame Frame;
  int Ratio;
};

void PaintMapByStamps(benchmark::State& run)
{
  Screen screen(static_cast<int>(run.range(0)));
  for (auto _ : run) {
    QPainter painter(&screen.Image);
    PaintDrawing(painter, Map().Picture, screen.Frame);
  }
}
BENCHMARK(PaintMapByStamps)->ArgName("ratio")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

/// The plain way: an antialiased disc for each site.
void PaintMapByEllipses(benchmark::State& run)
{
  Screen screen(static_cast<int>(run.range(0)));
  for (auto _ : run) {
    QPainter painter(&screen.Image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const DrawMark& mark : Map().Picture.Marks) {
      if (const auto* dot = std::get_if<DotMark>(&mark)) {
        const double radius = dot->Stroke.Width * screen.Ratio / 2;
        painter.setBrush(QColor(dot->Stroke.Ink.Red, dot->Stroke.Ink.Green, dot->Stroke.Ink.Blue));
        painter.drawEllipse(screen.Frame.Map(Map().Picture, dot->At), radius, radius);
      }
    }
  }
}
BENCHMARK(PaintMapByEllipses)->ArgName("ratio")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void IndexSites(benchmark::State& run)
{
  for (auto _ : run) {
    SiteIndex index(Map().Sites);
    benchmark::DoNotOptimize(index);
  }
}
BENCHMARK(IndexSites)->Unit(benchmark::kMillisecond);

/// Pointing: the nearest site and its text.
void HoverOverSites(benchmark::State& run)
{
  const SiteIndex index(Map().Sites);
  std::size_t i = 0;
  for (auto _ : run) {
    i = (i + 7919) % Map().Sites.size();
    const auto site = index.Nearest(Map().Sites[i].At, 0.02);
    if (!site) {
      run.SkipWithError("there is a site under each pointer");
      break;
    }
    benchmark::DoNotOptimize(SiteText(Survey(), static_cast<std::size_t>(site->Site)));
  }
}
BENCHMARK(HoverOverSites)->Unit(benchmark::kMicrosecond);

/// One frame of a view that moves: composed anew, and from the layer that is kept.
void PanMap(benchmark::State& run)
{
  PlotPane pane(nullptr);
  pane.resize(800, 800);
  pane.Show(Map(), {}, true);
  QImage image(pane.size(), QImage::Format_RGB32);
  double left = -0.5;
  for (auto _ : run) {
    left = left > 0 ? -0.5 : left + 0.01;
    pane.SetView({left, -0.5, 1});
    pane.render(&image);
  }
}
BENCHMARK(PanMap)->Unit(benchmark::kMillisecond);

/// What a recomposition of an enlarged view takes.
void PaintZoomedMap(benchmark::State& run)
{
  Screen screen(1);
  for (auto _ : run) {
    QPainter painter(&screen.Image);
    PaintDrawing(painter, ZoomedPicture(Map(), {-0.9, -0.9, 1.8}), screen.Frame);
  }
}
BENCHMARK(PaintZoomedMap)->Unit(benchmark::kMillisecond);

void WritePdf(benchmark::State& run)
{
  const Picture picture{PlotPage(Map()), "map"};
  std::size_t bytes = 0;
  for (auto _ : run) {
    bytes = PictureContent(picture, PictureFormat::Pdf, 0).size();
  }
  run.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(WritePdf)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
