#pragma once

#include "signal/edge_buffer.h"
#include "toolkit/clock.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace veln {

/// Removes all outlier sites from the survey; the others keep their order and close up. Counts the sites and
/// the iteration and refreshes the statistics. Throws Refusal when validation is closed or the decorrelation
/// found no outlier. Returns the number of sites removed.
int DeleteOutliers(SurveyState& state);

/// What the user wants done when the configuration is accepted; both steps need a transect survey.
struct AcceptanceOptions {
  BufferExtent EdgeBuffering = BufferExtent::None;
  bool TransitionAnalysis = false;

  [[nodiscard]] bool Buffer() const { return EdgeBuffering != BufferExtent::None; }
};

/// What an acceptance did.
struct Acceptance {
  std::optional<int> EdgeMasked;             ///< masking steps of edge buffering
  std::optional<int> HighScores;             ///< sites above the field's own variability
  std::vector<std::filesystem::path> Files;  ///< written, in this order
};

/// Accepts the configuration: outliers become masked, edge buffering and transition analysis run as asked,
/// `info.txt` is written and the design menus open. Notes and questions go through `dialogs`. A file that
/// can't be written is warned of and the acceptance goes on. Throws Refusal, with nothing changed, when
/// validation is closed, or when an option does not fit a grid or needs distances that can't be computed.
Acceptance AcceptConfiguration(SurveyState& state, const AcceptanceOptions& options, Dialogs& dialogs,
                               const Clock& clock);

}  // namespace veln
