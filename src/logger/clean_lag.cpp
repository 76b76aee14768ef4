#include "logger/cleaning.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

/// A place at a moment.
struct Moment {
  double Time = 0, X = 0, Y = 0;
};

/// Where a track was at a time; `moments` rise in time. Empty outside of them.
std::optional<Moment> PlaceAt(const std::vector<Moment>& moments, double time)
{
  const auto after = std::ranges::lower_bound(moments, time, {}, &Moment::Time);
  if (after == moments.end() || (after == moments.begin() && after->Time != time)) {
    return std::nullopt;
  }
  if (after->Time == time) {
    return *after;
  }
  const Moment& before = *(after - 1);
  const double share = (time - before.Time) / (after->Time - before.Time);
  return Moment{time, before.X + share * (after->X - before.X), before.Y + share * (after->Y - before.Y)};
}

/// The moments of the readings of one file; those whose time does not rise are passed over.
std::vector<Moment> MomentsOf(const std::vector<TrackPoint>& points, std::size_t begin, std::size_t end)
{
  std::vector<Moment> moments;
  for (std::size_t i = begin; i < end; ++i) {
    const TrackPoint& point = points[i];
    if (!std::isnan(point.Time) && (moments.empty() || point.Time > moments.back().Time)) {
      moments.push_back({point.Time, point.X, point.Y});
    }
  }
  return moments;
}

/// The moments of the fixes of one survey line, from `begin` on, and where they end.
std::vector<Moment> MomentsOf(const std::vector<Fix>& fixes, std::uint16_t file, std::uint16_t line)
{
  std::vector<Moment> moments;
  const auto same = [&](const Fix& fix) { return fix.File == file && fix.Line == line; };
  for (auto fix = std::ranges::find_if(fixes, same); fix != fixes.end() && same(*fix); ++fix) {
    if (moments.empty() || fix->Time > moments.back().Time) {
      moments.push_back({fix->Time, fix->X, fix->Y});
    }
  }
  return moments;
}

Fate PlaceBy(const std::vector<Moment>& moments, double time, Fate otherwise, TrackPoint& point)
{
  const auto place = std::isnan(time) ? std::nullopt : PlaceAt(moments, time);
  if (!place) {
    return otherwise;
  }
  point.X = place->X;
  point.Y = place->Y;
  return Fate::Site;
}

}  // namespace

void PlaceReadings(Track& track, const std::vector<Fix>& fixes, const Readings& readings, double lagSeconds)
{
  if (std::ranges::none_of(readings.Files, [](const FileAccount& file) { return file.Form.Records; })) {
    return;
  }
  std::vector<Moment> moments;
  std::optional<std::pair<std::uint16_t, std::uint16_t>> line;
  track.Drop([&](std::size_t i) {
    TrackPoint& point = track.Points[i];
    if (!readings.Files[point.File].Form.Records) {
      return Fate::Site;
    }
    if (line != std::pair(point.File, point.Row)) {
      line = {point.File, point.Row};
      moments = MomentsOf(fixes, point.File, point.Row);
    }
    const Fate fate = PlaceBy(moments, point.Time, Fate::NoPosition, point);
    return fate == Fate::Site ? PlaceBy(moments, point.Time - lagSeconds, Fate::NoLag, point) : fate;
  });
}

void ShiftByLag(Track& track, double seconds, const Readings& readings)
{
  const bool timed =
      std::ranges::any_of(track.Points, [](const auto& point) { return !std::isnan(point.Time); });
  if (!timed) {
    throw Refusal("--lag needs times, and the files tell none; tell --time if a column holds them.");
  }
  std::size_t end = 0;
  std::vector<Moment> moments;
  track.Drop([&](std::size_t i) {
    if (readings.Files[track.Points[i].File].Form.Records) {
      return Fate::Site;  // placed where it was by its fixes
    }
    if (i == end) {
      while (end < track.Points.size() && track.Points[end].File == track.Points[i].File) {
        ++end;
      }
      moments = MomentsOf(track.Points, i, end);
    }
    return PlaceBy(moments, track.Points[i].Time - seconds, Fate::NoLag, track.Points[i]);
  });
}

}  // namespace veln
