#include "logger/path_chords.h"

#include "logger/cleaning.h"

#include <algorithm>
#include <cmath>

namespace veln {

double PathVector::Length() const
{
  return std::sqrt(X * X + Y * Y);
}

Path::Path(const std::vector<TrackPoint>& points, std::size_t begin, std::size_t end)
    : points_(points), begin_(begin)
{
  along_.reserve(end - begin);
  along_.push_back(0);
  for (std::size_t i = begin + 1; i < end; ++i) {
    along_.push_back(along_.back() + Distance(points[i - 1], points[i]));
  }
}

PathVector PathCursor::At(double along)
{
  const std::vector<double>& lengths = path_.along_;
  along = std::clamp(along, 0.0, lengths.back());
  while (lengths[index_] < along) {
    ++index_;
  }
  const TrackPoint& next = path_.points_[path_.begin_ + index_];
  if (index_ == 0 || lengths[index_] == along) {
    return {next.X, next.Y};
  }
  const TrackPoint& last = path_.points_[path_.begin_ + index_ - 1];
  const double share = (along - lengths[index_ - 1]) / (lengths[index_] - lengths[index_ - 1]);
  return {last.X + share * (next.X - last.X), last.Y + share * (next.Y - last.Y)};
}

PathVector Chord(const PathVector& from, const PathVector& to)
{
  return {to.X - from.X, to.Y - from.Y};
}

}  // namespace veln
