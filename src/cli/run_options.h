#pragma once

#include "cli/option_text.h"
#include "cli/picture_option.h"
#include "design/survey_reduction.h"
#include "signal/decorrelation.h"
#include "signal/edge_buffer.h"
#include "survey/survey_import.h"
#include "toolkit/advice.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// What `veln run` was asked to do.
struct RunOptions {
  std::filesystem::path Root;  ///< absolute
  std::string Project, Field, Description;
  bool Overwrite = false;
  ImportRequest Import;
  std::optional<ConductivityUnits> ConvertUnits;
  std::vector<CoordinateTranslation> Translations;
  DecorrelationLevels Levels;
  int DeletionRounds = 0;
  BufferExtent EdgeBuffering = BufferExtent::None;
  bool TransitionAnalysis = false;
  bool TransitionFile = false;
  std::optional<ReductionStep> Reduction;
  std::optional<SelectionOption> Selection;
  std::vector<DesignOption> Designs;
  std::vector<double> ManualSites;
  bool Export = true;
  std::vector<PictureOption> Pictures;
  PictureSettings PictureStyle;
  bool Json = false;
  bool Quiet = false;
  std::vector<Advice> Advices;  ///< on the sidecar beside the survey
};

/// A command line, read: a run, or a text to print (help, version).
struct CommandLine {
  std::optional<RunOptions> Run;
  std::string Text;
};

/// Reads the arguments behind the program's name. Throws Refusal (usage) for what is wrong whatever the
/// survey; nothing is written. The file system is asked only whether a project of an unusual name exists.
CommandLine ReadCommandLine(const std::vector<std::string>& arguments);

}  // namespace veln
