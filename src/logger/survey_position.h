#pragma once

#include "logger/track.h"

#include <optional>

namespace veln {

/// The coordinate system of a survey: the one told, else for geographic positions the UTM zone of the middle
/// (the mean of the extremes of latitude and of longitude, the short way across 180°), for others `local`.
/// Throws Refusal beyond 84° north or 80° south, where UTM ends.
CoordinateSystem SystemOf(const Readings& readings, const std::optional<CoordinateSystem>& told);

/// Turns latitudes and longitudes to metres; nothing for plane positions. Throws Refusal for `local`, and for
/// a position farther than 30° from the central meridian.
void ProjectReadings(Readings& readings, const CoordinateSystem& system);

}  // namespace veln
