#pragma once

#include "survey/field_extent.h"
#include "toolkit/drawing.h"
#include "workspace/survey_state.h"

#include <array>
#include <string>

namespace veln {

inline constexpr double SiteMapPixels = 433;  ///< side of `MGrid`, 6500 twips
inline constexpr int ManualDesignNumber = 6;

/// The state of `frmSiteMap`: the menu by the designs that exist at its opening, the title, and the picture
/// on `MGrid`, the unit square with y growing downward, 433 pixels wide.
struct SiteMapForm {
  bool mnusubSRS = false;
  std::array<bool, 5> mnusubRS = {true, false, false, false, false};
  bool mnusubUGD = false;
  std::string lblSMT;  ///< empty until a design is chosen
  Drawing MGrid;
};

/// `Form_Load`.
SiteMapForm LoadSiteMap(const SurveyState& state);

/// `mnusubRS1` to `mnusubRS5` and, with 6, `mnusubUGD`: draws design `number` as the survey's sites tell it
/// now. Throws Refusal if its entry is disabled.
void ShowDesignMap(SiteMapForm& form, const SurveyState& state, int number);

/// `FitSquare`: the extent made square about its centre, with a margin of a tenth of its side. An extent
/// without any size counts as 1 to either side.
FieldExtent FitSquare(const FieldExtent& extent);

/// `DrawSiteMap`: frame, all sites, and the sites of design `number` with their site numbers.
Drawing DrawSiteMap(const SurveyState& state, int number);

/// The message after a page was sent to the printer.
inline constexpr const char* MapSpooled =
    "An image of the current sampling design has been spooled to your printer...";

}  // namespace veln
