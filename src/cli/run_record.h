#pragma once

#include "design/design_run.h"
#include "design/design_scoring.h"
#include "quality/plan_quality.h"
#include "signal/decorrelation.h"
#include "toolkit/advice.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// One round of decorrelation.
struct DecorrelationRound {
  int Sites = 0;
  DecorrelationCounts Counts;
};

/// How good a design is.
struct DesignQuality {
  std::vector<std::size_t> Sites;  ///< of the plan, by place in the survey
  PlanFigures Figures;
  PlanStanding Standing;
};

/// One design that was saved.
struct SavedDesign {
  int Number = 0;
  Design Made;
  std::optional<DesignQuality> Quality;  ///< where the document of the run tells it
};

/// What a run did, step by step; a step that did not run is empty.
struct RunRecord {
  int ImportedSites = 0;
  std::vector<DecorrelationRound> Decorrelations;
  std::optional<int> EdgeMasked;
  std::optional<int> HighScores;
  std::optional<int> ReducedTo;  ///< sites that a reduction left available
  std::optional<SelectionScores> Selection;
  std::vector<SavedDesign> Designs;
  std::optional<std::vector<int>> ManualSites;  ///< site IDs in survey order
  std::vector<std::filesystem::path> Files;     ///< in the order written
  std::vector<std::string> Notes;
  std::vector<Advice> Advices;
};

}  // namespace veln
