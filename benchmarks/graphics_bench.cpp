// Pictures of the largest survey: 30,000 sites, two signals, 200 rows.
#include "graphics/drawing_svg.h"
#include "graphics/plot_page.h"
#include "graphics/survey_graph.h"
#include "signal/decorrelation.h"
#include "survey/survey_import.h"
#include "workspace/project.h"
#include "workspace/survey_state.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <string>

namespace {

using namespace veln;

const SurveyState& LargestSurvey()
{
  static const SurveyState Survey = [] {
    SurveyState state;
    state.ProgramDir = std::filesystem::temp_directory_path();
    AcceptProject(state, "bench", "BNCH", "");
    ImportSurvey(state, {VELN_LARGEST_SURVEY, {true, true, true}, {"EMv", "EMh"}});
    DecorrelateSignals(state, {});
    return state;
  }();
  return Survey;
}

/// The graphics window of the survey, with one plot composed.
SurveyGraph Composed(SurveyState& state, GraphEntry entry)
{
  DitherGenerator dither;
  SurveyGraph graph = LoadSurveyGraph(state);
  SelectGraph(graph, state, entry, dither);
  return graph;
}

void Compose(benchmark::State& run, GraphEntry entry)
{
  SurveyState state = LargestSurvey();
  DitherGenerator dither;
  SurveyGraph graph = LoadSurveyGraph(state);
  for ([[maybe_unused]] auto _ : run) {
    SelectGraph(graph, state, entry, dither);
    benchmark::DoNotOptimize(graph.Shown);
  }
}
BENCHMARK_CAPTURE(Compose, map, GraphEntry::mnuVs1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Compose, grid, GraphEntry::mnuGrid)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Compose, rsd, GraphEntry::mnuSz1z2)->Unit(benchmark::kMillisecond);

void ZoomMap(benchmark::State& run)
{
  SurveyState state = LargestSurvey();
  const SurveyGraph graph = Composed(state, GraphEntry::mnuVs1);
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(ZoomedPicture(graph.Shown, {-0.5, -0.5, 1}));
  }
}
BENCHMARK(ZoomMap)->Unit(benchmark::kMillisecond);

/// `reduced`: most sites were set aside by survey reduction, which gives each of them a ray in the rsd plot.
void WriteSvg(benchmark::State& run, GraphEntry entry, int symbolSize, bool reduced)
{
  SurveyState state = LargestSurvey();
  for (std::size_t i = 0; reduced && i < state.SiteStatus.size(); ++i) {
    state.SiteStatus[i] = i % 5 == 0 ? site_status::Free : site_status::Outlier;
  }
  DitherGenerator dither;
  SurveyGraph graph = LoadSurveyGraph(state);
  SetCCDDP(graph, {1, 2, symbolSize});
  SelectGraph(graph, state, entry, dither);
  std::string text;
  for ([[maybe_unused]] auto _ : run) {
    text = SvgText(PlotPage(graph.Shown), graph.Shown.Title);
    benchmark::DoNotOptimize(text);
  }
  run.counters["kB"] = static_cast<double>(text.size()) / 1000;
}
BENCHMARK_CAPTURE(WriteSvg, map, GraphEntry::mnuVs1, 4, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteSvg, map_of_large_dots, GraphEntry::mnuVs1, 10, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteSvg, scatter, GraphEntry::mnuSs1s2, 4, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WriteSvg, rsd_with_rays, GraphEntry::mnuSz1z2, 4, true)->Unit(benchmark::kMillisecond);

}  // namespace
