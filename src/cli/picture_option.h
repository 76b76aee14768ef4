#pragma once

#include "graphics/survey_graph.h"
#include "survey/data_load.h"

#include <filesystem>
#include <string>
#include <vector>

namespace veln {

/// One picture asked for: `KIND=FILE`.
struct PictureOption {
  GraphEntry Entry = GraphEntry::mnuGrid;  ///< what draws it, unless it is a site map
  std::string Row;                         ///< of a line plot: its number as typed into the window
  int SiteMapDesign = 0;                   ///< of a site map: 1 to 5, or 6 for the manual design; else 0
  std::filesystem::path File;              ///< absolute
};

/// The plot options of all pictures of a run.
struct PictureSettings {
  PlotChoices Choices;
  bool HighlightSamples = true;
  bool HighlightMasked = true;
  bool NorthSouth = false;  ///< direction of the transect rows, else east to west
};

/// What a survey can have pictures of.
struct PictureOffer {
  RecordLayout Layout;
  bool TransitionAnalysis = false;
};

/// Reads the values of `--plot`. Throws Refusal (usage) for an unknown kind, one that the survey's options
/// rule out, and a file whose name is not that of an SVG file.
std::vector<PictureOption> ReadPictures(const std::vector<std::string>& texts, const PictureOffer& offer);

}  // namespace veln
