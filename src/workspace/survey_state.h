#pragma once

#include "workspace/site_columns.h"
#include "workspace/workflow.h"

#include <array>
#include <filesystem>
#include <string>

namespace veln {

inline constexpr int MaxDesigns = 5;

/// One row of the statistics panel: label, count, mean, standard deviation, minimum and maximum as shown.
struct SignalRow {
  std::string LblNm, LblSz, LblMu, LblStd, LblMn, LblMx;
  bool operator==(const SignalRow&) const = default;
};

/// "Signal Statistics": the texts of `BSSFrame`.
struct SignalPanel {
  bool Visible = false;
  std::array<SignalRow, 2> Rows;
  bool CorrVisible = false;  ///< the heading "Corr"
  std::string LblCorr;
  bool operator==(const SignalPanel&) const = default;
};

/// "Decorrelation Statistics": the texts of `DCFrame`.
struct DecorrelationPanel {
  bool Visible = false;
  std::string Lblmstd, Lblmstdcnt, Lblostd, Lblostdcnt, LblDcnt, LblVcnt;
  bool operator==(const DecorrelationPanel&) const = default;
};

/// "EB / TA  Algorithms": the texts of `TFrame`, which stand at "invoked" until told otherwise.
struct AlgorithmPanel {
  bool Visible = false;
  std::string LblEB = "invoked";
  std::string Label21 = "invoked";
  bool operator==(const AlgorithmPanel&) const = default;
};

/// One row of the panel of designs: sample size and Opt-Criteria as shown, empty until the design is saved.
struct DesignRow {
  std::string Lblssn, Lblssoc;
  bool operator==(const DesignRow&) const = default;
};

/// "Sample Site Designs": the texts of `SDFrame`. A row shows once it has a text.
struct DesignPanel {
  bool Visible = false;
  std::array<DesignRow, MaxDesigns> Rows;
  std::string Lblssmdn;
  bool operator==(const DesignPanel&) const = default;
};

/// How the field lies after coordinate translations: mirrored in x or not, then turned.
struct FieldOrientation {
  int Degrees = 0;  ///< -180 to 179, positive counter-clockwise
  bool Mirrored = false;
  /// Whether x and y run as in the survey's file.
  [[nodiscard]] bool AsSurveyed() const { return Degrees == 0 && !Mirrored; }
  bool operator==(const FieldOrientation&) const = default;
};

/// The one record that holds a survey for the length of a program run. The front end owns the only one and
/// hands it to the procedures; what a panel shows is the text that files carry.
struct SurveyState : SiteColumns {
  // The survey.
  int SurveySize = 0;   ///< sites held; 50 to 30,000 after import, fewer after deletions
  int SignalCount = 1;  ///< signal columns, 1 or 2
  std::array<std::string, 2> SignalLabel;
  std::string SignalUnits = "mS/m";  ///< "mS/m" or "dS/m"
  bool LogTransform = false;         ///< the signals are natural logarithms

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

  // Status strings and panels of the main window.
  bool ProjectShown = false;  ///< `PSFrame`
  std::string FieldDescription, ProjectName, FieldId;
  std::string ImportFileName, SurveyType, LblSS, LblSC, SignalTransformText;
  SignalPanel Signals;
  DecorrelationPanel Decorrelation;
  AlgorithmPanel Algorithms;
  DesignPanel Designs;

  // Start-up settings.
  std::filesystem::path ProgramDir;  ///< absolute; base of `data`, `helpdocs` and the settings file
  std::string TextEditorPath;
  std::string InputFilePath;
  double PrinterDpiFactor = 2;  ///< 1 = 300 dpi, 2 = 600 dpi, 4 = 1200 dpi

  bool operator==(const SurveyState&) const = default;
};

/// Whether the survey was walked along transect rows (and so has row numbers).
bool IsTransect(const SurveyState& state);

/// The path of an output file: `data`, project and field ID under the program directory, then `suffix`
/// ("info.txt").
std::filesystem::path OutputPath(const SurveyState& state, const std::string& suffix);

/// The name of an output file: the field ID and `suffix`.
std::string OutputName(const SurveyState& state, const std::string& suffix);

}  // namespace veln
