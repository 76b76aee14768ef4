#include "design/design_optimisation.h"

#include "survey/field_extent.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace veln {

namespace {

constexpr double FarthestDistance = 1E+24;

double Criteria(double targetSeparation, double logSeparation, std::string_view rounding)
{
  const double criteria = targetSeparation / std::exp(logSeparation);
  if (!std::isfinite(criteria)) {
    throw Refusal("Error!  The coordinates of the survey are too large for Opt-Criteria to be computed.");
  }
  return RoundByFormat(criteria, rounding);
}

/// One trial exchange: rank `Rank` of point `Point` takes the place of the point's site.
struct Exchange {
  std::size_t Point = 0;
  std::size_t Rank = 0;  // 0: none beats the design
};

/// Tries every single exchange; keeps the best of those that beat `best`.
Exchange BestExchange(TargetSites& sites, std::size_t n, double& best)
{
  Exchange found;
  for (std::size_t point = 0; point < n; ++point) {
    for (const std::size_t rank : {std::size_t{1}, std::size_t{2}}) {
      SwapSites(sites, point, 0, rank);
      const double separation = DesignOpt(sites, n);
      if (separation > best) {
        best = separation;
        found = {point, rank};
      }
      SwapSites(sites, point, 0, rank);
    }
  }
  return found;
}

}  // namespace

double FindDMinVal(const TargetSites& sites, std::size_t point, std::size_t n)
{
  double best = FarthestDistance;
  const CandidateSite& site = sites.at(point)[0];
  for (std::size_t j = 0; j < n; ++j) {
    const CandidateSite& other = sites.at(j)[0];
    if (j == point || !other.Exists()) {
      continue;
    }
    const double dx = site.X - other.X;
    const double dy = site.Y - other.Y;
    best = std::min(best, std::sqrt(dx * dx + dy * dy));
  }
  return best;
}

double DesignOpt(const TargetSites& sites, std::size_t n)
{
  constexpr double Shared = 0.000001;  // keeps the logarithm defined when two sites share a position
  double sum = 0;
  for (std::size_t i = 0; i < n; ++i) {
    sum = sum + std::log(FindDMinVal(sites, i, n) + Shared);
  }
  return sum / static_cast<double>(n);
}

double TargetSepDist(const SurveyState& state, int n)
{
  const FieldExtent field = MeasureField(state);
  RequireMeasurable(field);
  const double rx = field.Width();
  const double ry = field.Height();
  if (rx == 0 && ry == 0) {
    throw Refusal(
        "Error!  All sites of the survey lie on one point, so that no spacing is defined.\n"
        "A design can not be made.");
  }
  const double p = rx <= ry ? ry / (rx + ry) : rx / (rx + ry);
  return (rx + ry) * p / (std::exp(p * std::log(n)) - 0.5);
}

Optimisation ExchangeSites(TargetSites& sites, std::size_t n, double targetSeparation,
                           std::string_view rounding, RunObserver& observer)
{
  double best = DesignOpt(sites, n);
  Optimisation result;
  result.OptCriteria = Criteria(targetSeparation, best, rounding);
  observer.Status("Initializing Optimization Algorithm:  Opt-Criteria = " +
                  NumberToString(result.OptCriteria));
  for (;;) {
    ++result.LoopCount;
    const Exchange exchange = BestExchange(sites, n, best);
    result.OptCriteria = Criteria(targetSeparation, best, rounding);
    const std::string progress =
        NumberToString(result.LoopCount) + ":  Opt-Criteria = " + NumberToString(result.OptCriteria);
    if (exchange.Rank == 0) {
      observer.Status("Converged on Itrn # " + progress + "  Now searching for 1st SS...");
      return result;
    }
    observer.Status("Iteration # " + progress);
    const PointCandidates& candidates = sites.at(exchange.Point);
    observer.Exchanged(candidates[0], candidates.at(exchange.Rank));
    SwapSites(sites, exchange.Point, 0, exchange.Rank);
  }
}

}  // namespace veln
