#include "quality/field_spread.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace veln {

namespace {

constexpr double Farthest = std::numeric_limits<double>::infinity();

/// Twice the area of a triangle, positive when its corners run counter-clockwise.
double Turn(const FieldPosition& a, const FieldPosition& b, const FieldPosition& c)
{
  return (b.X - a.X) * (c.Y - a.Y) - (b.Y - a.Y) * (c.X - a.X);
}

double SquaredDistance(const SurveyFacts& survey, std::size_t i, std::size_t j)
{
  const double dx = survey.X[i] - survey.X[j];
  const double dy = survey.Y[i] - survey.Y[j];
  return dx * dx + dy * dy;
}

bool FromLeft(const FieldPosition& a, const FieldPosition& b)
{
  return std::tie(a.X, a.Y) < std::tie(b.X, b.Y);
}

/// Positions strictly inside the polygon of the field's outermost sites in eight directions are no corners of
/// its hull; leaving them out saves sorting nearly all of a large survey.
std::vector<FieldPosition> OutsideTheEight(std::span<const double> x, std::span<const double> y)
{
  constexpr double Diagonal = 1;
  constexpr std::array<FieldPosition, 8> Directions = {
      {{0, -1}, {Diagonal, -1}, {1, 0}, {Diagonal, 1}, {0, 1}, {-Diagonal, 1}, {-1, 0}, {-Diagonal, -1}}};
  std::array<std::size_t, Directions.size()> outermost{};
  for (std::size_t i = 0; i < x.size(); ++i) {
    for (std::size_t d = 0; d < Directions.size(); ++d) {
      const auto reach = [&](std::size_t k) { return Directions[d].X * x[k] + Directions[d].Y * y[k]; };
      if (reach(i) > reach(outermost[d])) {
        outermost[d] = i;
      }
    }
  }
  std::vector<FieldPosition> outside;
  for (std::size_t i = 0; i < x.size(); ++i) {
    bool inside = true;
    for (std::size_t d = 0; d < Directions.size() && inside; ++d) {
      const std::size_t a = outermost[d];
      const std::size_t b = outermost[(d + 1) % Directions.size()];
      const bool sameCorner = x[a] == x[b] && y[a] == y[b];
      inside = sameCorner || Turn({x[a], y[a]}, {x[b], y[b]}, {x[i], y[i]}) > 0;
    }
    if (!inside) {
      outside.push_back({x[i], y[i]});
    }
  }
  return outside;
}

/// Appends the lower chain of positions that are sorted in the chain's direction, its last corner left out.
template <class Positions>
void AppendChain(const Positions& positions, std::vector<FieldPosition>& hull)
{
  const std::size_t start = hull.size();
  for (const FieldPosition& next : positions) {
    while (hull.size() >= start + 2 && Turn(hull[hull.size() - 2], hull.back(), next) <= 0) {
      hull.pop_back();
    }
    hull.push_back(next);
  }
  hull.pop_back();
}

}  // namespace

std::vector<FieldPosition> ConvexHull(std::span<const double> x, std::span<const double> y)
{
  std::vector<FieldPosition> positions = OutsideTheEight(x, y);
  std::ranges::sort(positions, FromLeft);
  const auto same = [](const FieldPosition& a, const FieldPosition& b) { return a.X == b.X && a.Y == b.Y; };
  const auto repeats = std::ranges::unique(positions, same);
  positions.erase(repeats.begin(), repeats.end());
  if (positions.size() < 3) {
    return positions;
  }
  std::vector<FieldPosition> hull;
  AppendChain(positions, hull);
  std::ranges::reverse(positions);
  AppendChain(positions, hull);
  return hull;
}

double PolygonArea(std::span<const FieldPosition> corners)
{
  double twice = 0;
  for (std::size_t i = 2; i < corners.size(); ++i) {
    twice += Turn(corners[0], corners[i - 1], corners[i]);
  }
  return twice / 2;
}

SpreadFigures MeasureSpread(const SurveyFacts& survey, std::span<const std::size_t> sites, double area)
{
  SpreadFigures figures;
  double smallest = Farthest;
  double sum = 0;
  for (std::size_t i = 0; i < sites.size(); ++i) {
    double nearest = Farthest;
    for (std::size_t j = 0; j < sites.size(); ++j) {
      if (j == i) {
        continue;
      }
      const double squared = SquaredDistance(survey, sites[i], sites[j]);
      nearest = std::min(nearest, squared);
      if (i < j && squared < smallest) {
        smallest = squared;
        figures.First = i;
        figures.Second = j;
      }
    }
    sum += std::sqrt(nearest);
  }
  figures.SmallestDistance = std::sqrt(smallest);
  figures.MeanNearest = sum / static_cast<double>(sites.size());
  if (area > 0) {
    const double spacing = std::sqrt(area / static_cast<double>(sites.size()));
    figures.SmallestRatio = figures.SmallestDistance / spacing;
    figures.MeanRatio = figures.MeanNearest / spacing;
  }
  return figures;
}

double SmallestDistance(const SurveyFacts& survey, std::span<const std::size_t> sites)
{
  double smallest = Farthest;
  for (std::size_t i = 0; i < sites.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      smallest = std::min(smallest, SquaredDistance(survey, sites[i], sites[j]));
    }
  }
  return std::sqrt(smallest);
}

double MeanDistanceToPlan(const SurveyFacts& survey, std::span<const std::size_t> sites)
{
  double sum = 0;
  for (const std::size_t available : survey.Available) {
    double nearest = Farthest;
    for (const std::size_t site : sites) {
      nearest = std::min(nearest, SquaredDistance(survey, available, site));
    }
    sum += std::sqrt(nearest);
  }
  return sum / static_cast<double>(survey.Available.size());
}

}  // namespace veln
