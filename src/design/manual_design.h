#pragma once

#include "toolkit/clock.h"
#include "toolkit/dialogs.h"
#include "workspace/survey_state.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// The place of the first site with this code; empty if there is none. A number beyond 16 bits belongs to no
/// site.
std::optional<std::size_t> FindSite(const SurveyState& state, double siteNumber);

/// What is told of a site number that no site has.
std::string UnknownSiteWarning(double siteNumber);

/// The sites selected by hand, by their place in the survey.
std::vector<std::size_t> SelectedSites(const SurveyState& state);

/// Selects a site, whatever state it is in. False if it was selected already.
bool SelectSite(SurveyState& state, std::size_t site);

/// Frees a site, also one that was masked or set aside. False if it was free already.
bool UnselectSite(SurveyState& state, std::size_t site);

/// `SaveUDSamInfo`: writes the manual design (`ugsd.txt`) of the sites selected, shows it in the panel of
/// designs and tells so. Returns the path. Throws Refusal with the system's reason, and nothing has changed
/// then.
std::filesystem::path SaveUDSamInfo(SurveyState& state, Dialogs& dialogs, const Clock& clock);

}  // namespace veln
