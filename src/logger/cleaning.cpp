#include "logger/cleaning.h"

#include <cmath>

namespace veln {

double Distance(const TrackPoint& a, const TrackPoint& b)
{
  const double dx = a.X - b.X;
  const double dy = a.Y - b.Y;
  return std::sqrt(dx * dx + dy * dy);
}

bool IsGap(const TrackPoint& before, const TrackPoint& after)
{
  constexpr double MostSeconds = 10;
  constexpr double MostMetres = 20;
  const double pause = after.Time - (before.Time + static_cast<double>(before.Dwell));
  return before.File != after.File || pause > MostSeconds || Distance(before, after) > MostMetres;
}

bool BeginsPiece(const TrackPoint& before, const TrackPoint& after)
{
  return before.Row != after.Row || before.File != after.File || (after.Row == 0 && IsGap(before, after));
}

}  // namespace veln
