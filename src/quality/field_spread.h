#pragma once

#include "design/exact_search.h"
#include "quality/plan.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace veln {

/// The corners of the convex hull of positions, counter-clockwise from the lowest x; fewer than three where
/// all lie on one line (Andrew 1979, Inf. Process. Lett. 9:216-219).
std::vector<FieldPosition> ConvexHull(std::span<const double> x, std::span<const double> y);

/// The area of a polygon given by its corners, in squared coordinate units; 0 for fewer than three.
double PolygonArea(std::span<const FieldPosition> corners);

/// How the sites of a plan lie to each other.
struct SpreadFigures {
  double SmallestDistance = 0;        ///< between two sites of the plan, in coordinate units
  std::size_t First = 0, Second = 0;  ///< that pair, by place in the plan
  double MeanNearest = 0;             ///< mean distance to the nearest neighbour (Clark & Evans 1954)
  std::optional<double> SmallestRatio,
      MeanRatio;  ///< both over sqrt(area / n); empty where the field has no area
};

/// Of a plan of two sites or more; `area` is that of the hull of all sites of the survey.
SpreadFigures MeasureSpread(const SurveyFacts& survey, std::span<const std::size_t> sites, double area);

/// The smallest distance between two sites.
double SmallestDistance(const SurveyFacts& survey, std::span<const std::size_t> sites);

/// The mean distance from an available site to the nearest site of the plan (Walvoort, Brus & de Gruijter
/// 2010, Comput. Geosci. 36:1261-1267).
double MeanDistanceToPlan(const SurveyFacts& survey, std::span<const std::size_t> sites);

}  // namespace veln
