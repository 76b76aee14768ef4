#include "design/support_sites.h"

#include "design/design_optimisation.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

bool IsCentral(const SurveyState& state, std::size_t i, double limit)
{
  return state.SiteStatus[i] == site_status::Free && std::abs(state.Decorr1[i]) < limit &&
         (state.SignalCount == 1 || std::abs(state.Decorr2[i]) < limit);
}

}  // namespace

double CentralLimit(int surveySize)
{
  constexpr double Scale = 125;
  constexpr double Lowest = 0.25;
  constexpr double Highest = 1;
  return std::clamp(Scale / surveySize, Lowest, Highest);
}

CandidateSite FindSupportSite(const SurveyState& state, const TargetSites& sites, std::size_t n)
{
  const double limit = CentralLimit(state.SurveySize);
  CandidateSite found;
  double best = 0;
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    if (!IsCentral(state, i, limit)) {
      continue;
    }
    const CandidateSite site{state.CoordX[i], state.CoordY[i], state.SiteId[i], i};
    if (const double distance = FindDMinVal(site, sites, n, n); distance > best) {
      best = distance;
      found = site;
    }
  }
  return found;
}

}  // namespace veln
