#include "design/target_search.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace veln {

namespace {

constexpr double FarthestDistance = 1E+24;

/// Distance of a site from the target in signal space, in standard deviations.
double TargetDistance(const SurveyState& state, std::size_t i, const SearchTarget& target)
{
  const double d1 = state.Decorr1[i] - target.Levels[0];
  const bool two = target.Levels.size() > 1;
  if (!two && !target.UseScores) {
    return std::abs(d1);  // the root of a square may round
  }
  double squares = d1 * d1;
  if (two) {
    const double d2 = state.Decorr2[i] - target.Levels[1];
    squares = squares + d2 * d2;
  }
  if (target.UseScores) {
    squares = squares + state.TransitionScore[i] * state.TransitionScore[i];
  }
  return std::sqrt(squares);
}

struct Pick {
  std::size_t Index = CandidateSite::None;
  double Distance = FarthestDistance;
};

/// One pass over the site list: the nearest free site of the stratum.
Pick NearestSite(const SurveyState& state, const SearchTarget& target, const Stratum& stratum)
{
  Pick best;
  int count = 0;
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    if (state.SiteStatus[i] != site_status::Free) {
      continue;
    }
    ++count;
    // The count is that of this pass: a site picked before is not free, and the strata behind it move on.
    if (count % stratum.ParseDenominator != stratum.ParseModulus) {
      continue;
    }
    const double distance = TargetDistance(state, i, target);
    if (distance < best.Distance) {  // of equal ones the earlier stays
      best = {i, distance};
    }
  }
  return best;
}

}  // namespace

PointCandidates LocateTargetSites(SurveyState& state, const SearchTarget& target, const Stratum& stratum,
                                  RunObserver& observer)
{
  PointCandidates candidates;
  std::string distances;
  for (CandidateSite& candidate : candidates) {
    const Pick pick = NearestSite(state, target, stratum);
    if (pick.Index == CandidateSite::None) {
      throw Refusal("There are not enough free sites in this stratum to find the sites of design point" +
                    NumberToString(target.Point) + ".\nThe design has not been made.");
    }
    state.SiteStatus[pick.Index] = site_status::Candidate;
    candidate = {state.CoordX[pick.Index], state.CoordY[pick.Index], state.SiteId[pick.Index], pick.Index};
    distances += " " + NumberToString(RoundByFormat(pick.Distance, "0.000"));
  }
  observer.Status(" Locating target sites for RSD level # " + NumberToString(target.Point) +
                  "  Del Vec = " + distances.substr(1));
  observer.CandidatesFound(target.Point, candidates);
  return candidates;
}

void ClearOldTS(SurveyState& state)
{
  std::ranges::replace(state.SiteStatus, site_status::Candidate, site_status::Free);
}

int DetermineAvSites(const SurveyState& state)
{
  return static_cast<int>(std::ranges::count(state.SiteStatus, site_status::Free));
}

}  // namespace veln
