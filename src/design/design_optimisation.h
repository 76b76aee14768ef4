#pragma once

#include "design/run_observer.h"
#include "design/target_sites.h"
#include "workspace/survey_state.h"

#include <string_view>

namespace veln {

/// The distance in the field from a site to the nearest of the first `n` points, that at index `except` left
/// out. Points without a site are passed over.
double FindDMinVal(const CandidateSite& site, const TargetSites& sites, std::size_t n, std::size_t except);

/// The log separation of the first `n` points: the mean natural logarithm of their nearest-neighbour
/// distances, each with 0.000001 added.
double DesignOpt(const TargetSites& sites, std::size_t n);

/// The ideal spacing of `n` sites in this field: (rx + ry) p / (n^p - 0.5), with p the share of the longer
/// side. Throws Refusal if all sites lie on one point or distances can't be computed.
double TargetSepDist(const SurveyState& state, int n);

/// What the exchange search arrived at.
struct Optimisation {
  double OptCriteria =
      0;              ///< ideal spacing over the geometric mean of the distances, rounded; smaller is better
  int LoopCount = 0;  ///< sweeps, the last one that changed nothing included
};

/// The exchange search: makes the one exchange of a point's site for an alternate that raises the log
/// separation most, of equal ones the first, until no exchange raises it. Opt-Criteria is rounded by the
/// format `rounding`.
Optimisation ExchangeSites(TargetSites& sites, std::size_t n, double targetSeparation,
                           std::string_view rounding, RunObserver& observer);

}  // namespace veln
