#include "quality/certificate.h"

#include "design/exact_search.h"

#include <cmath>

namespace veln {

std::optional<Certificate> Certify(const Plan& plan)
{
  constexpr double Percent = 100;
  if (plan.Candidates.size() < 2) {
    return std::nullopt;
  }
  const SpreadProblem problem(plan.Candidates);
  SearchLimit limit;
  const auto spread = FindBestSpread(problem, plan.Chosen, limit);
  if (!spread) {
    return std::nullopt;
  }
  const double own = problem.LogSeparation(plan.Chosen);
  Certificate certificate;
  certificate.Combinations = problem.Combinations();
  certificate.Proven = spread->Proven;
  certificate.PercentBelow = Percent * (std::exp(spread->Bound - own) - 1);
  certificate.OptCriteria = plan.TargetSeparation / std::exp(own);
  certificate.BestOptCriteria = plan.TargetSeparation / std::exp(spread->Bound);
  certificate.GreatestSmallestDistance = GreatestSmallestDistance(problem, limit);
  return certificate;
}

}  // namespace veln
