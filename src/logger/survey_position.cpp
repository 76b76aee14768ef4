#include "logger/survey_position.h"

#include "geodesy/transverse_mercator.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr double FullCircle = 360;

/// The least and greatest of some numbers.
struct Extremes {
  double Low = std::numeric_limits<double>::infinity();
  double High = -std::numeric_limits<double>::infinity();

  void Add(double value)
  {
    Low = std::min(Low, value);
    High = std::max(High, value);
  }
  [[nodiscard]] double Middle() const { return (Low + High) / 2; }
  [[nodiscard]] double Width() const { return High - Low; }
};

/// Calls `visit` for each place that positions were read for: points, or the fixes of record files.
template <class Source, class Visit>
void ForEachPlace(Source& readings, Visit visit)
{
  for (auto& point : readings.Points) {
    if (!readings.Files[point.File].Form.Records) {
      visit(point);
    }
  }
  for (auto& fix : readings.Fixes) {
    visit(fix);
  }
}

/// The mean of the extremes of latitude and of longitude, these the short way across 180°. Empty without
/// positions.
std::optional<GeographicPoint> MiddleOf(const Readings& readings)
{
  Extremes latitude;
  Extremes longitude;
  Extremes eastward;  // from 0 to 360, so that 180 lies in the middle
  ForEachPlace(readings, [&](const auto& place) {
    latitude.Add(place.Y);
    longitude.Add(place.X);
    eastward.Add(place.X < 0 ? place.X + FullCircle : place.X);
  });
  if (latitude.Width() < 0) {
    return std::nullopt;
  }
  const double middle = longitude.Width() <= eastward.Width() ? longitude.Middle() : eastward.Middle();
  return GeographicPoint{latitude.Middle(), std::remainder(middle, FullCircle)};
}

std::string PlaceText(const Readings& readings, const TrackPoint& point)
{
  return readings.Files[point.File].Path.string() + ", line " + GeneralForm(readings.Lines[point.First]);
}

std::string PlaceText(const Readings& readings, const Fix& fix)
{
  return readings.Files[fix.File].Path.string();
}

}  // namespace

CoordinateSystem SystemOf(const Readings& readings, const std::optional<CoordinateSystem>& told)
{
  const bool open = !told || told->Type == CoordinateSystem::Kind::Utm;
  const auto middle = readings.Geographic && open ? MiddleOf(readings) : std::nullopt;
  if (!middle) {
    return told.value_or(CoordinateSystem{});
  }
  const auto system = UtmSystemOf(middle->Latitude, middle->Longitude);
  if (!system) {
    throw Refusal("The survey lies at latitude " + FormatNumber(middle->Latitude, "0.0000") +
                  ", beyond UTM, which ends at 84 N and 80 S; tell a projection: --crs tm:lon0=" +
                  FormatNumber(middle->Longitude, "0") + ".");
  }
  return told.value_or(*system);
}

void ProjectReadings(Readings& readings, const CoordinateSystem& system)
{
  if (!readings.Geographic || (readings.Points.empty() && readings.Fixes.empty())) {
    return;
  }
  if (!system.IsProjected()) {
    throw Refusal("The files hold latitude and longitude, which are no local metres; tell another --crs.");
  }
  const TransverseMercatorProjection projection(system);
  ForEachPlace(readings, [&](auto& place) {
    if (!projection.Covers(place.X)) {
      throw Refusal(PlaceText(readings, place) + ": longitude " + FormatNumber(place.X, "0.0#####") +
                    " lies more than 30 degrees from the central meridian of " + TextOf(system) +
                    "; tell another --crs, or mend the line.");
    }
    const PlanePoint point = projection.Forward({place.Y, place.X});
    place.X = point.X;
    place.Y = point.Y;
  });
}

}  // namespace veln
