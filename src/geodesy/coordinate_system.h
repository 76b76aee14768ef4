#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace veln {

/// A transverse Mercator projection of the WGS 84 ellipsoid: degrees, metres.
struct TransverseMercatorSettings {
  double Lon0 = 0;                ///< central meridian
  double Lat0 = 0;                ///< latitude of origin
  double K0 = 0.9996;             ///< scale on the central meridian
  double FalseEasting = 500'000;  ///< x of the origin
  double FalseNorthing = 0;       ///< y of the origin

  bool operator==(const TransverseMercatorSettings&) const = default;
};

/// What the plane coordinates of a survey are, in metres.
struct CoordinateSystem {
  enum class Kind {
    Local,              ///< metres of an unknown grid
    Utm,                ///< Universal Transverse Mercator: `Zone` and `North` tell all
    TransverseMercator  ///< by `Settings`
  };

  Kind Type = Kind::Local;
  int Zone = 0;  ///< 1 to 60
  bool North = true;
  TransverseMercatorSettings Settings;  ///< in force for `Utm` too

  /// Whether there is a way from latitude and longitude to these coordinates.
  [[nodiscard]] bool IsProjected() const { return Type != Kind::Local; }
  bool operator==(const CoordinateSystem&) const = default;
};

/// A zone of UTM, 1 to 60, on the northern or southern hemisphere.
CoordinateSystem UtmSystem(int zone, bool north);

/// The UTM zone of a place by the standard rules, those for Norway and Svalbard among them, and the
/// hemisphere that it lies on. Empty beyond 84° north or 80° south, where UTM ends.
std::optional<CoordinateSystem> UtmSystemOf(double latitude, double longitude);

/// Reads `local`, `utm:31N`, `epsg:32631` (a number of a UTM zone: 326zz, 327zz, 258zz, 283zz) or
/// `tm:lon0=9,lat0=0,k0=0.9996,fe=500000,fn=0`, of which all but lon0 may be left out. Empty for anything
/// else.
std::optional<CoordinateSystem> ReadCoordinateSystem(std::string_view text);

/// The text that `ReadCoordinateSystem` reads: `local`, `utm:31N`, or `tm:` with all five settings.
std::string TextOf(const CoordinateSystem& system);

/// The EPSG number of a UTM zone on WGS 84 (32631 for utm:31N); empty for other systems.
std::optional<int> EpsgNumber(const CoordinateSystem& system);

}  // namespace veln
