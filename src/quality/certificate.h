#pragma once

#include "quality/plan.h"

#include <cstdint>
#include <optional>

namespace veln {

/// How near a plan comes to the best spread that its own candidates allow. Support sites are left out.
struct Certificate {
  std::int64_t Combinations = 0;  ///< plans that the candidates allow
  bool Proven = false;            ///< the best of them is known; else `PercentBelow` is a bound
  double PercentBelow = 0;  ///< loss in the geometric mean of the distances against the best (or its bound)
  double OptCriteria = 0;   ///< of the plan, not rounded
  double BestOptCriteria = 0;                      ///< of the best plan (or its bound), not rounded
  std::optional<double> GreatestSmallestDistance;  ///< between target points; empty when the search was ended

  [[nodiscard]] bool IsBest() const { return Proven && PercentBelow == 0; }
};

/// Empty for a plan without candidates.
std::optional<Certificate> Certify(const Plan& plan);

}  // namespace veln
