#pragma once

#include "quality/response_model.h"

#include <cstdint>
#include <optional>
#include <random>
#include <span>
#include <vector>

namespace veln {

/// Draws plans of available sites, each site at most once and each plan as likely as any other: the same
/// plans on every platform.
class RandomPlans {
 public:
  explicit RandomPlans(std::vector<std::size_t> available) : sites_(std::move(available)) {}

  /// The next plan, of at most as many sites as are available; it stands until the next draw.
  std::span<const std::size_t> Draw(std::size_t count);

 private:
  static constexpr std::uint64_t Seed = 1943;

  std::vector<std::size_t> sites_;
  std::mt19937_64 random_{Seed};
};

/// D-efficiency and smallest distance of one random plan.
struct RandomPlanFigures {
  std::optional<double> DEfficiency;  ///< empty when the plan is singular
  double SmallestDistance = 0;
};

/// `plans` random plans of `count` available sites.
std::vector<RandomPlanFigures> DrawRandomPlans(const SurveyFacts& survey, const ResponseModel& model,
                                               std::size_t count, int plans);

/// How many sites chosen at random make as sure of the model as a plan does.
struct EquivalentSites {
  std::optional<std::size_t> Sites;  ///< empty: not even `Most`
  std::size_t Most = 0;              ///< the largest number that was tried
};

/// The first number of sites m for which 200 random plans of m available sites have, in the median, no larger
/// mean prediction variance than the plan: m is the plan's own number, then every even number above it up to
/// 40, then every multiple of 5 up to 200 or to the number of available sites.
EquivalentSites FindEquivalentSites(const SurveyFacts& survey, const ResponseModel& model,
                                    std::size_t planSites, double planMeanVariance);

}  // namespace veln
