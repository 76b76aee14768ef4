// The steps of one run on the largest survey: 30,000 sites, two signals, 200 rows.
#include "design/design_run.h"
#include "design/design_scoring.h"
#include "signal/decorrelation.h"
#include "signal/transition_analysis.h"
#include "signal/validation.h"
#include "survey/data_load.h"
#include "survey/row_table.h"
#include "survey/survey_export.h"
#include "survey/survey_import.h"
#include "toolkit/clock.h"
#include "toolkit/dialogs.h"
#include "toolkit/file_store.h"
#include "toolkit/number_text.h"
#include "toolkit/rounded_number.h"
#include "workspace/project.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace veln;

constexpr const char* LargestSurvey = VELN_LARGEST_SURVEY;
constexpr RecordLayout Layout{true, true, true};

/// Agrees to everything and says nothing.
class QuietDialogs : public Dialogs {
 public:
  void Inform(const std::string& /*text*/) override {}
  void Warn(const std::string& /*text*/) override {}
  bool Ask(Question /*question*/, const std::string& /*text*/) override { return true; }
  void Beep() override {}
  std::optional<std::filesystem::path> ShowOpen(const FileQuestion& /*question*/) override
  {
    return std::nullopt;
  }
  void Shell(const std::vector<std::string>& /*command*/) override {}
};

SurveyState ImportedSurvey()
{
  SurveyState state;
  state.ProgramDir = std::filesystem::temp_directory_path();
  AcceptProject(state, "bench", "BNCH", "");
  ImportSurvey(state, {LargestSurvey, Layout, {"EMv", "EMh"}});
  return state;
}

SurveyState DecorrelatedSurvey()
{
  SurveyState state = ImportedSurvey();
  DecorrelateSignals(state, {});
  state.TransitionScore = TrnsAlys(state, InitRows(state.RowNumber));
  state.TransitionDone = true;
  state.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
  return state;
}

void ReadRawSurvey(benchmark::State& run)
{
  const std::string content = ReadFile(LargestSurvey);
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(DataLoad(content, Layout, false, {}));
  }
}
BENCHMARK(ReadRawSurvey)->Unit(benchmark::kMillisecond);

void Decorrelate(benchmark::State& run)
{
  SurveyState state = ImportedSurvey();
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(DecorrelateSignals(state, {}));
  }
}
BENCHMARK(Decorrelate)->Unit(benchmark::kMillisecond);

void ScoreTransitions(benchmark::State& run)
{
  const SurveyState state = DecorrelatedSurvey();
  const auto rows = InitRows(state.RowNumber);
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(TrnsAlys(state, rows));
  }
}
BENCHMARK(ScoreTransitions)->Unit(benchmark::kMillisecond);

/// By design size: 0, 1, 2 for 6, 12 and 20 sites.
void OneDesign(benchmark::State& run)
{
  SurveyState state = DecorrelatedSurvey();
  RunObserver unwatched;
  DesignSettings settings;
  settings.Size = static_cast<DesignSize>(run.range(0));
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(MakeDesign(state, settings, unwatched));
  }
}
BENCHMARK(OneDesign)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

void FullSelection(benchmark::State& run)
{
  SurveyState state = DecorrelatedSurvey();
  RunObserver unwatched;
  const SelectionPlan plan{StrataToAnalyse(state.SurveySize), SelectionScope::Full};
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(ScoreDesigns(state, {}, plan, unwatched));
  }
}
BENCHMARK(FullSelection)->Unit(benchmark::kMillisecond);

void ComposeExport(benchmark::State& run)
{
  const SurveyState state = DecorrelatedSurvey();
  for ([[maybe_unused]] auto _ : run) {
    benchmark::DoNotOptimize(ComposeSurveyExport(state));
  }
}
BENCHMARK(ComposeExport)->Unit(benchmark::kMillisecond);

/// A column of the export by the plain rule, and by the quick one that stands in for it.
void RoundNumbersPlainly(benchmark::State& run)
{
  const SurveyState state = DecorrelatedSurvey();
  for ([[maybe_unused]] auto _ : run) {
    for (const double z : state.Decorr1) {
      benchmark::DoNotOptimize(NumberToString(RoundByFormat(z, "0.00###")));
    }
  }
}
BENCHMARK(RoundNumbersPlainly)->Unit(benchmark::kMillisecond);

void RoundNumbersQuickly(benchmark::State& run)
{
  const SurveyState state = DecorrelatedSurvey();
  for ([[maybe_unused]] auto _ : run) {
    for (const double z : state.Decorr1) {
      benchmark::DoNotOptimize(RoundedNumber(z, "0.00###"));
    }
  }
}
BENCHMARK(RoundNumbersQuickly)->Unit(benchmark::kMillisecond);

}  // namespace
