#include "design/survey_reduction.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace veln {

void ReduceGridSize(SurveyState& state, const ReductionStep& step)
{
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    const bool stays = (i + 1) % static_cast<std::size_t>(step.Factor) == 0;
    if (!stays && state.SiteStatus[i] == site_status::Free) {
      state.SiteStatus[i] = site_status::Outlier;
    }
  }
}

void RecoverGridSites(SurveyState& state)
{
  std::ranges::replace(state.SiteStatus, site_status::Outlier, site_status::Free);
}

int CountStrata(int surveySize)
{
  constexpr double SitesPerStratum = FewestSitesForParsing;
  const double rounded = std::nearbyint(surveySize / SitesPerStratum) + 1;  // a tie to the even neighbour
  return static_cast<int>(std::min<double>(rounded, MostStrata));
}

}  // namespace veln
