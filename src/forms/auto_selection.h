#pragma once

#include "design/design_scoring.h"
#include "forms/srs_form.h"

#include <optional>
#include <string>

namespace veln {

/// `mnuSRSAutoFull` and `mnuSRSAutoLimited`: asks, then scores a design for every combination of stratum and
/// D-factor at the size selected and saves none. Leaves D-factor 1.00 and no parsing. Empty if the user says
/// No or the observer stops it between designs, and nothing has changed then.
std::optional<SelectionScores> SelectDesigns(SrsForm& form, SurveyState& state, SelectionScope scope,
                                             Dialogs& dialogs, RunObserver& observer);

/// `lblBest`: the best combination, or that there is none.
std::string BestDesignText(const SelectionSummary& summary);

/// `lblAccpt`: how many combinations are acceptable; empty without a best one.
std::string AcceptableText(const SelectionSummary& summary);

}  // namespace veln
