#pragma once

#include "quality/certificate.h"
#include "quality/field_spread.h"
#include "quality/plan.h"
#include "quality/random_plans.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace veln {

/// A miss of more standard deviations than this counts: a tenth of what the pattern of targets reaches from
/// its centre.
inline constexpr double CountedMiss = 0.3;
/// A reading that differs more from its neighbours, in standard deviations, is no picture of its place.
inline constexpr double DifferingReading = 1;

/// How well the response surface can be estimated. Empty when it can't: too few sites, or a singular plan.
struct ModelFigures {
  double DEfficiency = 0;
  double MeanVariance = 0;  ///< of prediction over the available sites, in units of the residual variance
  double LargestVariance = 0;
  std::size_t LargestAt = 0;  ///< that site's place in the survey
};

/// How near the target points came to their targets in signal space.
struct TargetFigures {
  int Targets = 0;
  int Missed = 0;        ///< by more than `CountedMiss`
  double WorstMiss = 0;  ///< in standard deviations
  int WorstPoint = 0;    ///< its design point, from 1
};

/// How the readings at the chosen sites stand to their neighbours in the row.
struct ReadingFigures {
  int Judged = 0;      ///< sites with enough neighbours
  int Differing = 0;   ///< by more than `DifferingReading`
  double Largest = 0;  ///< in standard deviations
  std::size_t LargestAt = 0;
};

/// Of random plans of as many available sites.
struct ChanceFigures {
  int Plans = 0;
  int Both = 0;  ///< reach both the plan's D-efficiency and its smallest distance
};

/// The figures that cost next to nothing.
struct PlanFigures {
  std::size_t Sites = 0;
  std::size_t Terms = 0;  ///< of the model that the plan is for
  std::optional<ModelFigures> Model;
  std::vector<std::optional<double>>
      Misses;  ///< one entry a site of the plan; support and manual sites have none
  std::optional<TargetFigures> Targets;
  std::optional<SpreadFigures> Spread;  ///< empty for a single site
  double Coverage = 0;                  ///< mean distance from an available site to the plan
  std::optional<ReadingFigures> Readings;
};

/// The figures that a search or random plans must find.
struct PlanStanding {
  std::optional<EquivalentSites> Equivalent;  ///< empty without a model, or over 200 sites
  std::optional<ChanceFigures> Chance;
  std::optional<Certificate> Proof;
};

/// The distance of a site, by its place in the survey, from a target in signal space, in standard deviations;
/// that of z1 alone with one signal.
double TargetMiss(const SurveyFacts& survey, std::size_t site, const std::array<double, 2>& target);

PlanFigures MeasurePlan(const SurveyFacts& survey, const Plan& plan);

/// The figures of `MeasurePlan` are taken as they are.
PlanStanding RankPlan(const SurveyFacts& survey, const Plan& plan, const PlanFigures& figures);

}  // namespace veln
