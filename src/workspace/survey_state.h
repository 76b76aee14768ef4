#pragma once

#include "workspace/site_columns.h"
#include "workspace/survey_facts.h"
#include "workspace/workflow.h"

#include <array>
#include <filesystem>
#include <optional>
#include <string>

namespace veln {

inline constexpr int MaxDesigns = 5;
inline constexpr int LongestLabel = 10;  ///< characters of a signal's label

/// The one record that holds a survey for the length of a program run. The front end owns the only one and
/// hands it to the procedures. It holds facts; captions.h has the texts that are shown of them.
struct SurveyState : SiteColumns {
  // Project and field.
  std::string FieldDescription, ProjectName, FieldId;

  // The survey.
  std::string ImportFileName;
  SurveyKind Kind = SurveyKind::Grid;
  int SurveySize = 0;   ///< sites held; 50 to 30,000 after import, fewer after deletions
  int SignalCount = 1;  ///< signal columns, 1 or 2
  std::array<std::string, 2> SignalLabel;
  ConductivityUnits SignalUnits = ConductivityUnits::MilliSiemens;
  bool LogTransform = false;  ///< the signals are natural logarithms
  FieldOrientation Orientation;

  // How far the run has come.
  bool DecorrDone = false;
  bool TransitionDone = false;
  int DeletedSiteCount = 0;  ///< sites deleted by validation so far
  int ValidationCount = 0;   ///< validation iterations so far
  int DesignCount = 0;       ///< designs saved, 0 to 5
  bool ManualDesignDone = false;
  bool OverlayReady = false;
  Workflow Menu;

  // What the steps found.
  SignalPanel Signals;
  DecorrelationFacts Decorrelation;          ///< the last one, with the default levels before it
  std::optional<AlgorithmFacts> Algorithms;  ///< once the configuration is accepted
  std::array<DesignFacts, MaxDesigns> Designs;
  int ManualDesignSize = 0;  ///< sites of the saved manual design

  // Start-up settings.
  std::filesystem::path ProgramDir;  ///< absolute; base of `data`, `helpdocs` and the settings file
  std::string TextEditorPath;
  std::string InputFilePath;
  double PrinterDpiFactor = 2;  ///< 1 = 300 dpi, 2 = 600 dpi, 4 = 1200 dpi

  bool operator==(const SurveyState&) const = default;
};

/// Whether the survey was walked along transect rows (and so has row numbers).
bool IsTransect(const SurveyState& state);

/// Whether a sample design of either kind is saved.
bool HasDesign(const SurveyState& state);

/// The path of an output file: `data`, project and field ID under the program directory, then `suffix`
/// ("info.txt").
std::filesystem::path OutputPath(const SurveyState& state, const std::string& suffix);

/// The directory of the field's output files.
std::filesystem::path OutputFolder(const SurveyState& state);

/// The name of an output file: the field ID and `suffix`.
std::string OutputName(const SurveyState& state, const std::string& suffix);

}  // namespace veln
