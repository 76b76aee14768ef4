#include "design/design_optimisation.h"

#include "survey/field_extent.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

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

/// `SwapSites`: the site of a point and its alternate at `rank` change places.
void SwapSites(TargetSites& sites, std::size_t point, std::size_t rank)
{
  std::swap(sites.at(point)[0], sites.at(point).at(rank));
}

/// One exchange: rank `Rank` of point `Point` takes the place of the point's site.
struct Exchange {
  std::size_t Point = 0;
  std::size_t Rank = 0;   // 0: the design stays as it is
  double Separation = 0;  // log separation of the design with it
};

/// Tries every single exchange for itself and takes it back, so that one sweep compares them all on the same
/// design; the first of the best ones that beat the design.
Exchange BestExchange(TargetSites& sites, std::size_t n, double separation)
{
  Exchange best{0, 0, separation};
  for (std::size_t point = 0; point < n; ++point) {
    for (const std::size_t rank : {std::size_t{1}, std::size_t{2}}) {
      SwapSites(sites, point, rank);
      if (const double trial = DesignOpt(sites, n); trial > best.Separation) {
        best = {point, rank, trial};
      }
      SwapSites(sites, point, rank);
    }
  }
  return best;
}

}  // namespace

double FindDMinVal(const CandidateSite& site, const TargetSites& sites, std::size_t n, std::size_t except)
{
  double best = FarthestDistance;
  for (std::size_t j = 0; j < n; ++j) {
    const CandidateSite& other = sites.at(j)[0];
    if (j == except || !other.Exists()) {
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
    sum = sum + std::log(FindDMinVal(sites.at(i)[0], sites, n, i) + Shared);
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
  double separation = DesignOpt(sites, n);
  Optimisation result;
  result.OptCriteria = Criteria(targetSeparation, separation, rounding);
  observer.Status("Initializing Optimization Algorithm:  Opt-Criteria = " +
                  NumberToString(result.OptCriteria));
  for (;;) {
    ++result.LoopCount;
    const Exchange exchange = BestExchange(sites, n, separation);
    separation = exchange.Separation;
    result.OptCriteria = Criteria(targetSeparation, separation, rounding);
    const std::string progress =
        NumberToString(result.LoopCount) + ":  Opt-Criteria = " + NumberToString(result.OptCriteria);
    if (exchange.Rank == 0) {
      observer.Status("Converged on Itrn # " + progress + "  Now searching for 1st SS...");
      return result;
    }
    observer.Status("Iteration # " + progress);
    const PointCandidates& candidates = sites.at(exchange.Point);
    observer.Exchanged(candidates[0], candidates.at(exchange.Rank));
    SwapSites(sites, exchange.Point, exchange.Rank);
  }
}

}  // namespace veln
