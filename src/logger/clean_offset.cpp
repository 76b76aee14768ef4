#include "logger/cleaning.h"
#include "logger/path_chords.h"

#include <algorithm>

namespace veln {

namespace {

constexpr double ChordMetres = 5;
constexpr double LeastChord = 1;  // a shorter one is the receiver's noise while the sensor stands

/// Tells the heading at points of a path, one after the other.
class HeadingTeller {
 public:
  explicit HeadingTeller(const Path& path) : path_(path), from_(path), to_(path) {}

  /// The heading around a point as a way of one metre; empty while the sensor stands.
  std::optional<PathVector> At(std::size_t point)
  {
    const double middle = path_.Along(point);
    const double from =
        std::clamp(middle - ChordMetres / 2, 0.0, std::max(path_.Length() - ChordMetres, 0.0));
    const PathVector chord = Chord(from_.At(from), to_.At(from + ChordMetres));
    const double length = chord.Length();
    return length < LeastChord ? std::nullopt : std::optional(PathVector{chord.X / length, chord.Y / length});
  }

 private:
  const Path& path_;
  PathCursor from_, to_;
};

void ShiftFile(std::vector<TrackPoint>& points, std::size_t begin, std::size_t end,
               const AntennaOffset& offset)
{
  const Path path(points, begin, end);
  std::optional<PathVector> last;
  HeadingTeller first(path);
  for (std::size_t i = begin; i < end && !last; ++i) {
    last = first.At(i);  // what precedes the first heading goes by that
  }
  if (!last) {
    return;
  }
  std::vector<PathVector> moved;
  moved.reserve(end - begin);
  HeadingTeller headings(path);
  for (std::size_t i = begin; i < end; ++i) {
    const auto heading = headings.At(i);
    last = heading ? heading : last;
    moved.push_back({points[i].X + offset.Forward * last->X + offset.Right * last->Y,
                     points[i].Y + offset.Forward * last->Y - offset.Right * last->X});
  }
  for (std::size_t i = begin; i < end; ++i) {
    points[i].X = moved[i - begin].X;
    points[i].Y = moved[i - begin].Y;
  }
}

}  // namespace

void ShiftByOffset(Track& track, const AntennaOffset& offset)
{
  std::vector<TrackPoint>& points = track.Points;
  for (std::size_t begin = 0; begin < points.size();) {
    std::size_t end = begin;
    while (end < points.size() && points[end].File == points[begin].File) {
      ++end;
    }
    ShiftFile(points, begin, end, offset);
    begin = end;
  }
}

}  // namespace veln
