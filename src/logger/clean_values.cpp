#include "logger/cleaning.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>

namespace veln {

void DropOutside(Track& track, const std::vector<Polygon>& boundary, const std::vector<Polygon>& exclusions,
                 double insetMetres)
{
  if (boundary.empty() && exclusions.empty()) {
    return;
  }
  track.Drop([&](std::size_t i) {
    const PlanePoint place{track.Points[i].X, track.Points[i].Y};
    const auto holds = [&place](const Polygon& polygon) { return polygon.Holds(place); };
    const auto holdsInset = [&](const Polygon& polygon) {
      return polygon.Holds(place) && (insetMetres <= 0 || polygon.DistanceToEdge(place) >= insetMetres);
    };
    if (!boundary.empty() && std::ranges::none_of(boundary, holdsInset)) {
      return Fate::Outside;
    }
    return std::ranges::any_of(exclusions, holds) ? Fate::Excluded : Fate::Site;
  });
}

void JudgeNonPositive(Track& track, NonPositive choice, const Readings& readings)
{
  if (choice == NonPositive::Keep) {
    return;
  }
  track.Drop([&](std::size_t i) {
    const TrackPoint& point = track.Points[i];
    for (std::size_t k = 0; k < static_cast<std::size_t>(readings.SignalCount); ++k) {
      if (point.Signals.at(k) > 0) {
        continue;
      }
      if (choice == NonPositive::Refuse) {
        throw Refusal(readings.Files[point.File].Path.string() + ", line " +
                      GeneralForm(readings.Lines[point.First]) + ", column \"" + readings.Labels.at(k) +
                      "\": " + ShortestForm(point.Signals.at(k)) +
                      " is 0 or less; --nonpositive drop leaves such readings out, keep takes them.");
      }
      return Fate::NonPositive;
    }
    return Fate::Site;
  });
}

}  // namespace veln
