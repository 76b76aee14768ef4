#pragma once

#include "geodesy/coordinate_system.h"

#include <memory>

namespace veln {

/// A place on the WGS 84 ellipsoid, in degrees; north and east are positive.
struct GeographicPoint {
  double Latitude = 0, Longitude = 0;
};

/// A place in the plane, in metres.
struct PlanePoint {
  double X = 0, Y = 0;
};

/// The way between the ellipsoid and the plane of a projected coordinate system: Krüger's series of the
/// transverse Mercator projection to sixth order, as GeographicLib computes it; its error is below 5 nm
/// within 30° of the central meridian.
class TransverseMercatorProjection {
 public:
  /// `system` must be projected.
  explicit TransverseMercatorProjection(const CoordinateSystem& system);
  TransverseMercatorProjection(const TransverseMercatorProjection&) = delete;
  TransverseMercatorProjection& operator=(const TransverseMercatorProjection&) = delete;
  ~TransverseMercatorProjection();

  [[nodiscard]] PlanePoint Forward(const GeographicPoint& place) const;
  [[nodiscard]] GeographicPoint Reverse(const PlanePoint& place) const;
  /// Whether a longitude lies within 30° of the central meridian, where the projection is to be trusted.
  [[nodiscard]] bool Covers(double longitude) const;

 private:
  struct Series;
  std::unique_ptr<Series> series_;
  TransverseMercatorSettings settings_;
  double originY_ = 0;  ///< y of the latitude of origin before the false northing
};

}  // namespace veln
