#pragma once

#include "logger/track.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace veln {

/// A way in the plane, in metres east and north.
struct PathVector {
  double X = 0, Y = 0;

  [[nodiscard]] double Length() const;
};

/// The path through consecutive points [begin, end) of a track, by its length from the first of them.
class Path {
 public:
  Path(const std::vector<TrackPoint>& points, std::size_t begin, std::size_t end);

  [[nodiscard]] double Length() const { return along_.back(); }
  /// The length of path up to a point of the track.
  [[nodiscard]] double Along(std::size_t point) const { return along_[point - begin_]; }

 private:
  friend class PathCursor;

  const std::vector<TrackPoint>& points_;
  std::size_t begin_;
  std::vector<double> along_;
};

/// Tells places of a path at lengths that never fall.
class PathCursor {
 public:
  explicit PathCursor(const Path& path) : path_(path) {}

  /// The place at a length of path, which is held within it.
  PathVector At(double along);

 private:
  const Path& path_;
  std::size_t index_ = 0;  ///< the first point that lies at or behind the place
};

/// The chord from one place to another.
PathVector Chord(const PathVector& from, const PathVector& to);

}  // namespace veln
