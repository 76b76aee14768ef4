#include "geodesy/transverse_mercator.h"

#include <GeographicLib/Constants.hpp>
#include <GeographicLib/TransverseMercator.hpp>
#include <cmath>

namespace veln {

struct TransverseMercatorProjection::Series {
  GeographicLib::TransverseMercator Value;
};

TransverseMercatorProjection::TransverseMercatorProjection(const CoordinateSystem& system)
    : series_(std::make_unique<Series>(Series{
          {GeographicLib::Constants::WGS84_a(), GeographicLib::Constants::WGS84_f(), system.Settings.K0}})),
      settings_(system.Settings)
{
  double x = 0;
  series_->Value.Forward(settings_.Lon0, settings_.Lat0, settings_.Lon0, x, originY_);
}

TransverseMercatorProjection::~TransverseMercatorProjection() = default;

PlanePoint TransverseMercatorProjection::Forward(const GeographicPoint& place) const
{
  PlanePoint point;
  series_->Value.Forward(settings_.Lon0, place.Latitude, place.Longitude, point.X, point.Y);
  return {point.X + settings_.FalseEasting, point.Y - originY_ + settings_.FalseNorthing};
}

GeographicPoint TransverseMercatorProjection::Reverse(const PlanePoint& place) const
{
  GeographicPoint point;
  series_->Value.Reverse(settings_.Lon0, place.X - settings_.FalseEasting,
                         place.Y - settings_.FalseNorthing + originY_, point.Latitude, point.Longitude);
  return point;
}

bool TransverseMercatorProjection::Covers(double longitude) const
{
  constexpr double MostDegrees = 30;
  constexpr double FullCircle = 360;
  return std::abs(std::remainder(longitude - settings_.Lon0, FullCircle)) <= MostDegrees;
}

}  // namespace veln
