#pragma once

#include <set>

namespace veln {

/// The entries of the main menu that open and close as the work goes on. All others are always open.
enum class MenuEntry {
  mnuProject,
  mnuImport,
  mnuVPOF,
  mnuSG,
  mnuStats,
  mnuSigD,
  mnuSigV,
  mnuSRS,
  mnuMask,
  mnuSHowMap
};

/// What moves the work on.
enum class WorkflowEvent {
  ProjectAccepted,
  SurveyImported,
  SignalsDecorrelated,
  ConfigurationAccepted,
  DesignSaved,
  ManualDesignSaved,
  DesignsExhausted  ///< the fifth design was saved, or too few free sites are left
};

/// The gate of the whole program: the set of enabled entries of the main menu. At start only `mnuProject` is
/// open.
class Workflow {
 public:
  Workflow();

  [[nodiscard]] bool IsEnabled(MenuEntry entry) const;
  /// Opens and closes the entries that the event moves.
  void Apply(WorkflowEvent event);
  /// Throws Refusal if the entry is closed; `step` names what was asked for ("Signal decorrelation").
  void Require(MenuEntry entry, const char* step) const;

  bool operator==(const Workflow&) const = default;

 private:
  std::set<MenuEntry> enabled_;
};

}  // namespace veln
