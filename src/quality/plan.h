#pragma once

#include "design/exact_search.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace veln {

/// What the figures of a plan's quality are computed from: the survey as it stood when the run of the design
/// began. One entry a site in all columns.
struct SurveyFacts {
  std::span<const std::int16_t> SiteId;
  std::span<const double> X, Y;        ///< in coordinate units
  std::span<const double> Z1, Z2;      ///< in standard deviations; `Z2` is empty with one signal
  std::span<const double> S1, S2;      ///< as analysed (logarithms, if so); `S2` is empty with one signal
  std::array<double, 2> SignalStd{};   ///< standard deviations of `S1` and `S2`
  std::span<const std::int16_t> Row;   ///< transect rows; empty for a grid
  std::vector<std::size_t> Available;  ///< the free sites, by place in the survey, the plan's own among them

  [[nodiscard]] bool TwoSignals() const { return !Z2.empty(); }
};

/// A site of a plan.
struct PlanSite {
  std::size_t Site = 0;  ///< its place in the survey
  int Point = 0;         ///< design point, from 1; 0 in a manual design
  std::optional<std::array<double, 2>>
      Target;  ///< for z1 and z2 (one signal: the first); support and manual sites have none
};

/// A plan whose quality is asked for.
struct Plan {
  std::vector<PlanSite> Sites;
  /// Of the target points: the candidates that the search found, and the one of each that was chosen. Empty
  /// where no certificate is to be had, as for a manual design.
  std::vector<std::vector<FieldPosition>> Candidates;
  CandidateChoice Chosen;
  double TargetSeparation = 0;  ///< the ideal spacing that Opt-Criteria compares with

  /// The sites alone, by place in the survey.
  [[nodiscard]] std::vector<std::size_t> Places() const
  {
    std::vector<std::size_t> places;
    places.reserve(Sites.size());
    for (const PlanSite& site : Sites) {
      places.push_back(site.Site);
    }
    return places;
  }
};

}  // namespace veln
