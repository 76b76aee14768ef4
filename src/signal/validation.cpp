#include "signal/validation.h"

#include "signal/info_file.h"
#include "signal/transition_analysis.h"
#include "survey/field_extent.h"
#include "survey/row_table.h"
#include "survey/statistics.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "workspace/project.h"

#include <algorithm>

namespace veln {

namespace {

void RunEdgeBuffering(SurveyState& state, BufferExtent extent, Dialogs& dialogs, Acceptance& acceptance)
{
  const int masked = EdgeBuffer(state, InitRows(state.RowNumber), extent);
  acceptance.EdgeMasked = masked;
  dialogs.Inform("Note:  " + NumberToString(masked) + " sites were masked by the edge buffering algorithm.");
}

void WriteTransitionFile(const SurveyState& state, Dialogs& dialogs, Acceptance& acceptance)
{
  if (!dialogs.Ask(Question::WriteTransitionFile,
                   "Would you like an output file of the TA data values created and saved?")) {
    return;
  }
  const auto path = OutputPath(state, "tstd.std");
  try {
    WriteFieldFiles(state, {{path, ComposeTransitionFile(state)}});
    acceptance.Files.push_back(path);
  } catch (const Refusal&) {
    dialogs.Warn("Warning: could not create output TSD file...");
  }
}

void RunTransitionAnalysis(SurveyState& state, Dialogs& dialogs, Acceptance& acceptance)
{
  state.TransitionScore = TrnsAlys(state, InitRows(state.RowNumber));
  const int high = CountHighTVSites(state.TransitionScore);
  acceptance.HighScores = high;
  dialogs.Inform("Note:  " + NumberToString(high) + " sites exceed the global signal variability level.");
  state.TransitionDone = true;
  WriteTransitionFile(state, dialogs, acceptance);
}

void MakeInfoFile(const SurveyState& state, Dialogs& dialogs, const Clock& clock, Acceptance& acceptance)
{
  const auto path = OutputPath(state, "info.txt");
  try {
    WriteFieldFiles(state, {{path, ComposeInfoFile(state, clock)}});
  } catch (const Refusal& refusal) {
    dialogs.Warn("Warning: could not create survey information file...\n" + refusal.Message());
    return;
  }
  acceptance.Files.push_back(path);
  dialogs.Inform("Data file information & statistics saved to " + OutputName(state, "info.txt"));
}

}  // namespace

int DeleteOutliers(SurveyState& state)
{
  state.Menu.Require(MenuEntry::mnuSigV, "Signal validation");
  if (state.Decorrelation.Counts.OutlierCount == 0) {
    throw Refusal("There are no outliers to delete.");
  }
  std::vector<bool> stays;
  stays.reserve(state.SiteStatus.size());
  for (const std::int16_t status : state.SiteStatus) {
    stays.push_back(status != site_status::Outlier);
  }
  state.KeepOnly(stays);
  const auto deleted = static_cast<int>(std::ranges::count(stays, false));
  state.SurveySize -= deleted;
  state.DeletedSiteCount += deleted;
  ++state.ValidationCount;
  UpdateSignalStats(state);
  return deleted;
}

Acceptance AcceptConfiguration(SurveyState& state, const AcceptanceOptions& options, Dialogs& dialogs,
                               const Clock& clock)
{
  state.Menu.Require(MenuEntry::mnuSigV, "Signal validation");
  if (options.Buffer() || options.TransitionAnalysis) {
    if (!IsTransect(state)) {
      throw Refusal("Edge buffering and transition analysis need a transect survey.");
    }
    RequireMeasurable(MeasureField(state));
  }
  Acceptance acceptance;
  const auto stateOf = [&state](bool asked) {
    const auto notRun = IsTransect(state) ? AlgorithmState::NotAsked : AlgorithmState::NotApplicable;
    return asked ? AlgorithmState::Invoked : notRun;
  };
  std::ranges::replace(state.SiteStatus, site_status::Outlier, site_status::Masked);
  if (options.Buffer()) {
    RunEdgeBuffering(state, options.EdgeBuffering, dialogs, acceptance);
  }
  if (options.TransitionAnalysis) {
    RunTransitionAnalysis(state, dialogs, acceptance);
  }
  state.Algorithms = {stateOf(options.Buffer()), stateOf(options.TransitionAnalysis)};
  MakeInfoFile(state, dialogs, clock, acceptance);
  state.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
  return acceptance;
}

}  // namespace veln
