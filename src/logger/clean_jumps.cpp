#include "logger/cleaning.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr std::size_t MostFixesInJump = 5;

template <class Place>
double Between(const Place& a, const Place& b)
{
  const double dx = a.X - b.X;
  const double dy = a.Y - b.Y;
  return std::sqrt(dx * dx + dy * dy);
}

bool IsSameFix(const TrackPoint& a, const TrackPoint& b)
{
  return a.X == b.X && a.Y == b.Y && a.File == b.File;
}

bool IsSameFix(const Fix& /*a*/, const Fix& /*b*/)
{
  return false;
}

bool IsSameTrack(const TrackPoint& a, const TrackPoint& b)
{
  return a.File == b.File;
}

bool IsSameTrack(const Fix& a, const Fix& b)
{
  return a.File == b.File && a.Line == b.Line;
}

/// The index behind the readings that share the fix of `begin`.
template <class Place>
std::size_t FixEnd(const std::vector<Place>& places, std::size_t begin)
{
  std::size_t end = begin + 1;
  while (end < places.size() && IsSameFix(places[begin], places[end])) {
    ++end;
  }
  return end;
}

template <class Place>
double DistanceOfJump(const std::vector<Place>& places, const std::optional<double>& told)
{
  constexpr double LeastMetres = 10;
  constexpr double MedianSteps = 5;
  if (told) {
    return *told;
  }
  std::vector<double> steps;
  for (std::size_t i = 0; i < places.size();) {
    const std::size_t next = FixEnd(places, i);
    if (next < places.size() && IsSameTrack(places[i], places[next])) {
      steps.push_back(Between(places[i], places[next]));
    }
    i = next;
  }
  if (steps.empty()) {
    return LeastMetres;
  }
  const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
  std::ranges::nth_element(steps, middle);
  double median = *middle;
  if (steps.size() % 2 == 0) {
    median = (median + *std::max_element(steps.begin(), middle)) / 2;
  }
  return std::max(LeastMetres, MedianSteps * median);
}

/// Where the jump behind the fix at `before` ends: the index of the fix that lies near it again. The end of
/// that fix itself where there is no jump.
template <class Place>
std::size_t JumpEnd(const std::vector<Place>& places, std::size_t before, double metres)
{
  const std::size_t begin = FixEnd(places, before);
  std::vector<std::size_t> jumping;
  for (std::size_t fix = begin; fix < places.size() && IsSameTrack(places[before], places[fix]);
       fix = FixEnd(places, fix)) {
    if (Between(places[before], places[fix]) <= metres) {
      const bool far = std::ranges::all_of(
          jumping, [&](std::size_t i) { return Between(places[i], places[fix]) > metres; });
      return far ? fix : begin;
    }
    if (jumping.size() == MostFixesInJump) {
      return begin;
    }
    jumping.push_back(fix);
  }
  return begin;
}

/// Calls `drop(first, end)` for each jump.
template <class Place, class Drop>
void ForEachJump(const std::vector<Place>& places, double metres, Drop drop)
{
  if (metres <= 0) {
    return;
  }
  for (std::size_t i = 0; i < places.size();) {
    const std::size_t next = FixEnd(places, i);
    const bool far = next < places.size() && IsSameTrack(places[i], places[next]) &&
                     Between(places[i], places[next]) > metres;
    const std::size_t end = far ? JumpEnd(places, i, metres) : next;
    if (end != next) {
      drop(next, end);
    }
    i = end;
  }
}

}  // namespace

double JumpDistance(const std::vector<TrackPoint>& points, const std::optional<double>& told)
{
  return DistanceOfJump(points, told);
}

void DropJumps(Track& track, double metres)
{
  std::vector<bool> jumps(track.Points.size());
  ForEachJump(track.Points, metres, [&jumps](std::size_t first, std::size_t end) {
    std::fill(jumps.begin() + static_cast<std::ptrdiff_t>(first),
              jumps.begin() + static_cast<std::ptrdiff_t>(end), true);
  });
  track.Drop([&jumps](std::size_t i) { return jumps[i] ? Fate::Jump : Fate::Site; });
}

void DropJumpingFixes(std::vector<Fix>& fixes, const std::optional<double>& told)
{
  std::vector<Fix> kept;
  std::size_t begin = 0;
  ForEachJump(fixes, DistanceOfJump(fixes, told), [&](std::size_t first, std::size_t end) {
    kept.insert(kept.end(), fixes.begin() + static_cast<std::ptrdiff_t>(begin),
                fixes.begin() + static_cast<std::ptrdiff_t>(first));
    begin = end;
  });
  kept.insert(kept.end(), fixes.begin() + static_cast<std::ptrdiff_t>(begin), fixes.end());
  fixes = std::move(kept);
}

}  // namespace veln
