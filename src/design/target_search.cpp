#include "design/target_search.h"

#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace veln {

namespace {

constexpr double FarthestDistance = 1E+24;

/// Distance of a site from the target in signal space, in standard deviations.
double TargetDistance(const SurveyState& state, std::size_t i, const SearchTarget& target)
{
  const double d1 = state.Decorr1[i] - target.Z1;
  if (state.SignalCount == 1 && !target.UseScores) {
    return std::abs(d1);
  }
  double squares = d1 * d1;
  if (state.SignalCount == 2) {
    const double d2 = state.Decorr2[i] - target.Z2;
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
    if (count % stratum.ParseDenominator != stratum.ParseModulus) {
      continue;
    }
    const double distance = TargetDistance(state, i, target);
    if (distance < best.Distance) {
      best = {i, distance};
    }
  }
  return best;
}

}  // namespace

void SwapSites(TargetSites& sites, std::size_t point, std::size_t rank1, std::size_t rank2)
{
  std::swap(sites.at(point).at(rank1), sites.at(point).at(rank2));
}

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
