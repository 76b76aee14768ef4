#pragma once

#include "desktop/desktop_fixture.h"

#include <functional>
#include <vector>

namespace veln {

/// A window, and the record and the other windows with which it opens.
struct Opening {
  std::string Title;  ///< "frmSigVal" or, where a window has more than one state, "frmSigVal, grid"
  SurveyState State;
  std::function<void(Program&)> Show;

  [[nodiscard]] std::string Name() const { return Title.substr(0, Title.find(',')); }
};

/// Every window of the program, in each of the states that differ in what can be done.
std::vector<Opening> Openings();

}  // namespace veln
