#pragma once

#include "workspace/survey_state.h"

#include <filesystem>
#include <functional>
#include <string>

namespace veln {

/// Told the site count after every twentieth site (every hundredth for a grid with one signal).
using ExportProgress = std::function<void(int site)>;

/// The text of `data.svy`: two header lines, then one line for each site in survey order.
std::string ComposeSurveyExport(const SurveyState& state, const ExportProgress& progress = {});

/// What `frmOutFD` shows when an export has ended.
struct ExportResult {
  bool Written = false;
  std::filesystem::path Path;
  std::string Label1;  ///< how many lines were exported
  std::string Label2;  ///< the file's name and what became of it
  std::string Reason;  ///< why it could not be written; empty on success
};

/// Exports the processed survey to `data.svy` in the project directory. A failure leaves an older file whole
/// and is told in the result. Throws Refusal while no design is saved.
ExportResult MakeOutF(const SurveyState& state, const ExportProgress& progress = {});

/// The timer of `frmOutFD`: the file is written on the second tick, once for each opening of the window.
struct ExportTimer {
  int TickCount = 0;
  bool Done = false;

  /// One tick; true when the export is to be made now.
  bool Tick();
};

}  // namespace veln
