#pragma once

#include "logger/conversion_options.h"
#include "logger/polygons.h"
#include "logger/track.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace veln {

/// A place that was dropped, for a map.
struct DroppedPlace {
  double X = 0, Y = 0;
  Fate Why = Fate::Missing;
  std::uint32_t Reading = 0;
};

/// A track in work: points in survey order, and what became of their readings.
struct Track {
  std::vector<TrackPoint>& Points;
  std::vector<Fate>& Fates;
  std::vector<DroppedPlace>* Dropped = nullptr;  ///< kept where a map wants them

  /// Notes the fate of a dropped point's reading.
  void Note(const TrackPoint& point, Fate fate)
  {
    Fates[point.First] = fate;
    if (Dropped != nullptr) {
      Dropped->push_back({point.X, point.Y, fate, point.First});
    }
  }

  /// Drops the points for which `fateOf` gives another fate than `Fate::Site`; it is asked once for each, in
  /// order.
  template <class FateOf>
  void Drop(FateOf fateOf)
  {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < Points.size(); ++i) {
      const Fate fate = fateOf(i);
      if (fate == Fate::Site) {
        if (kept != i) {
          Points[kept] = Points[i];
        }
        ++kept;
      } else {
        Note(Points[i], fate);
      }
    }
    Points.resize(kept);
  }
};

/// The distance between two points, in metres.
double Distance(const TrackPoint& a, const TrackPoint& b);

/// Whether a track is broken between two points that follow each other: by a new file, by more than 10 s from
/// the last reading of the one to the first of the other, or by more than 20 m.
bool IsGap(const TrackPoint& before, const TrackPoint& after);

/// The distance that makes a jump: the one told, else 10 m, or 5 times the median step between fixes if that
/// is more. 0: none is looked for.
double JumpDistance(const std::vector<TrackPoint>& points, const std::optional<double>& told);

/// Drops jumps: up to 5 fixes in a row (readings at one position are one fix) that lie farther than `metres`
/// from the fix before and from the fix after them, while these two lie within it.
void DropJumps(Track& track, double metres);
/// The same for the fixes of record files.
void DropJumpingFixes(std::vector<Fix>& fixes, const std::optional<double>& told);

/// Gives readings of record files their places: between the fixes of their survey line, where they were
/// `lagSeconds` before. Those outside the fixes are dropped.
void PlaceReadings(Track& track, const std::vector<Fix>& fixes, const Readings& readings, double lagSeconds);

/// Gives each reading the place where the sensor was `seconds` before, between the readings of its file.
/// Readings without a time, or of which nothing is known so long before, are dropped. Throws Refusal when no
/// reading has a time.
void ShiftByLag(Track& track, double seconds, const Readings& readings);

/// Moves places from the antenna to the sensor, along the heading of the chord over 5 m of track around each
/// reading; where the track has none (standing), the last one known holds.
void ShiftByOffset(Track& track, const AntennaOffset& offset);

/// Drops what lies outside the boundary or in an excluded area.
void DropOutside(Track& track, const std::vector<Polygon>& boundary, const std::vector<Polygon>& exclusions,
                 double insetMetres);

/// Drops readings with a signal of 0 or less, or refuses the first, as told.
void JudgeNonPositive(Track& track, NonPositive choice, const Readings& readings);

/// Joins consecutive readings at one place to sites: those nearer than `stillMetres` to the site's first
/// reading.
void JoinRepeats(Track& track, double stillMetres, Repeats repeats);

/// Whether a piece of path begins between two sites: another row or file, or outside of rows a gap.
bool BeginsPiece(const TrackPoint& before, const TrackPoint& after);

/// Running median of the signals over so many sites (odd) along each piece of path, fewer at its ends.
void SmoothByMedian(std::vector<TrackPoint>& points, int signals, int sites);

/// Joins the sites of each piece of `metres` of path within a row (on a grid: between gaps) to their mean.
void ThinPath(Track& track, double metres);
/// The sites that thinning by `metres` would leave.
std::size_t CountThinned(const std::vector<TrackPoint>& points, double metres);

}  // namespace veln
