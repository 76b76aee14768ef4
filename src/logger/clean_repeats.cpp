#include "logger/cleaning.h"

#include <cmath>

namespace veln {

namespace {

/// Readings that become one site.
class SiteInWork {
 public:
  void Begin(const TrackPoint& point)
  {
    site_ = point;
    sum_ = point;
    count_ = 1;
  }

  void Add(const TrackPoint& point)
  {
    sum_.X += point.X;
    sum_.Y += point.Y;
    for (std::size_t k = 0; k < sum_.Signals.size(); ++k) {
      sum_.Signals.at(k) += point.Signals.at(k);
    }
    ++count_;
    site_.Last = point.Last;
    const double dwell = point.Time + static_cast<double>(point.Dwell) - site_.Time;
    site_.Dwell = dwell > 0 ? static_cast<float>(dwell) : site_.Dwell;
  }

  [[nodiscard]] const TrackPoint& First() const { return site_; }

  [[nodiscard]] TrackPoint Mean() const
  {
    TrackPoint mean = site_;
    if (count_ > 1) {
      const auto count = static_cast<double>(count_);
      mean.X = sum_.X / count;
      mean.Y = sum_.Y / count;
      for (std::size_t k = 0; k < mean.Signals.size(); ++k) {
        mean.Signals.at(k) = sum_.Signals.at(k) / count;
      }
    }
    return mean;
  }

 private:
  TrackPoint site_, sum_;
  std::size_t count_ = 0;
};

bool AtSameCentimetres(const TrackPoint& a, const TrackPoint& b)
{
  constexpr double PerMetre = 100;
  return std::round(a.X * PerMetre) == std::round(b.X * PerMetre) &&
         std::round(a.Y * PerMetre) == std::round(b.Y * PerMetre);
}

/// Joins consecutive points to one while `joins(first, next)` holds.
template <class Joins>
void JoinWhile(Track& track, Fate fate, bool keepFirst, Joins joins)
{
  if (track.Points.empty()) {
    return;
  }
  SiteInWork site;
  site.Begin(track.Points.front());
  std::size_t kept = 0;
  const auto finish = [&] { track.Points[kept++] = keepFirst ? site.First() : site.Mean(); };
  for (std::size_t i = 1; i < track.Points.size(); ++i) {
    const TrackPoint& point = track.Points[i];
    if (joins(site.First(), point)) {
      site.Add(point);
      track.Fates[point.First] = fate;
    } else {
      finish();
      site.Begin(point);
    }
  }
  finish();
  track.Points.resize(kept);
}

/// Tells in which piece of `metres` along its row each site lies, in the order of the track.
class PieceCounter {
 public:
  PieceCounter(const std::vector<TrackPoint>& points, double metres) : points_(points), metres_(metres) {}

  /// Whether the site at `index` begins a new piece.
  bool Begins(std::size_t index)
  {
    const TrackPoint& point = points_[index];
    if (index == 0 || BeginsPiece(last_, point)) {
      along_ = 0;
      piece_ = 0;
      last_ = point;
      return true;
    }
    along_ += Distance(last_, point);
    last_ = point;
    const double piece = std::floor(along_ / metres_);
    const bool begins = piece != piece_;
    piece_ = piece;
    return begins;
  }

 private:
  const std::vector<TrackPoint>& points_;
  double metres_;
  TrackPoint last_;
  double along_ = 0, piece_ = 0;
};

}  // namespace

void JoinRepeats(Track& track, double stillMetres, Repeats repeats)
{
  const bool centimetres = stillMetres <= 0 || repeats == Repeats::All;
  JoinWhile(track, Fate::Repeat, repeats == Repeats::First,
            [&](const TrackPoint& first, const TrackPoint& next) {
              return first.File == next.File && first.Row == next.Row &&
                     (centimetres ? AtSameCentimetres(first, next) : Distance(first, next) < stillMetres);
            });
}

void ThinPath(Track& track, double metres)
{
  if (metres <= 0) {
    return;
  }
  // Points are replaced behind the one in work, which the counter has then passed.
  PieceCounter counter(track.Points, metres);
  std::size_t index = 0;
  JoinWhile(track, Fate::Thinned, false, [&](const TrackPoint& /*first*/, const TrackPoint& /*next*/) {
    if (index == 0) {
      counter.Begins(index++);
    }
    return !counter.Begins(index++);
  });
}

std::size_t CountThinned(const std::vector<TrackPoint>& points, double metres)
{
  PieceCounter counter(points, metres);
  std::size_t sites = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    sites += counter.Begins(i) ? 1 : 0;
  }
  return sites;
}

}  // namespace veln
