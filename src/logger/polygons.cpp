#include "logger/polygons.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace veln {

namespace {

double DistanceToSegment(const PlanePoint& place, const PlanePoint& a, const PlanePoint& b)
{
  const double dx = b.X - a.X;
  const double dy = b.Y - a.Y;
  const double square = dx * dx + dy * dy;
  const double share = square > 0 ? ((place.X - a.X) * dx + (place.Y - a.Y) * dy) / square : 0;
  const double held = std::clamp(share, 0.0, 1.0);
  const double x = place.X - (a.X + held * dx);
  const double y = place.Y - (a.Y + held * dy);
  return std::sqrt(x * x + y * y);
}

/// Calls `visit(a, b)` for each edge of a ring.
template <class Visit>
void ForEachEdge(const Ring& ring, Visit visit)
{
  for (std::size_t i = 0; i < ring.size(); ++i) {
    visit(ring[i], ring[(i + 1) % ring.size()]);
  }
}

enum class Side { Outside, Edge, Inside };

/// Crossing rule: a ray to the east crosses the edges of a ring that holds the place an odd number of times.
Side SideOf(const PlanePoint& place, const Ring& ring)
{
  bool inside = false;
  bool edge = false;
  ForEachEdge(ring, [&](const PlanePoint& a, const PlanePoint& b) {
    const double cross = (b.X - a.X) * (place.Y - a.Y) - (b.Y - a.Y) * (place.X - a.X);
    const bool between = std::min(a.X, b.X) <= place.X && place.X <= std::max(a.X, b.X) &&
                         std::min(a.Y, b.Y) <= place.Y && place.Y <= std::max(a.Y, b.Y);
    edge = edge || (cross == 0 && between);
    if ((a.Y > place.Y) != (b.Y > place.Y) && (cross > 0) == (b.Y > a.Y)) {
      inside = !inside;
    }
  });
  if (edge) {
    return Side::Edge;
  }
  return inside ? Side::Inside : Side::Outside;
}

}  // namespace

Polygon::Polygon(std::vector<Ring> rings) : rings_(std::move(rings))
{
  constexpr double Most = std::numeric_limits<double>::infinity();
  low_ = {Most, Most};
  high_ = {-Most, -Most};
  for (const PlanePoint& point : rings_.front()) {
    low_ = {std::min(low_.X, point.X), std::min(low_.Y, point.Y)};
    high_ = {std::max(high_.X, point.X), std::max(high_.Y, point.Y)};
  }
}

bool Polygon::Holds(const PlanePoint& place) const
{
  if (place.X < low_.X || place.X > high_.X || place.Y < low_.Y || place.Y > high_.Y ||
      SideOf(place, rings_.front()) == Side::Outside) {
    return false;
  }
  return std::none_of(rings_.begin() + 1, rings_.end(),
                      [&place](const Ring& hole) { return SideOf(place, hole) == Side::Inside; });
}

double Polygon::DistanceToEdge(const PlanePoint& place) const
{
  double least = std::numeric_limits<double>::infinity();
  for (const Ring& ring : rings_) {
    ForEachEdge(ring, [&](const PlanePoint& a, const PlanePoint& b) {
      least = std::min(least, DistanceToSegment(place, a, b));
    });
  }
  return least;
}

}  // namespace veln
