#pragma once

#include "geodesy/coordinate_system.h"
#include "logger/read_files.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

enum class NonPositive { Keep, Drop, Refuse };
/// What becomes of readings at one place.
enum class Repeats {
  Mean,   ///< the site has their means, and the first one's time
  First,  ///< the site is the first one
  All     ///< only readings at the same centimetres are joined, to their mean
};
enum class RowsFrom { Track, None, Column };

/// How rows are found in a track.
struct RowChoices {
  RowsFrom From = RowsFrom::Track;
  double TurnDegrees = 30;        ///< headings behind and ahead that differ by more make a turn
  double ChordMetres = 5;         ///< of track behind and ahead, from which headings are taken
  double LeastMetres = 15;        ///< the shortest row
  std::optional<bool> KeepTurns;  ///< dropped by default

  bool operator==(const RowChoices&) const = default;
};

/// Where the sensor sat seen from the antenna.
struct AntennaOffset {
  double Forward = 0, Right = 0;  ///< metres

  bool operator==(const AntennaOffset&) const = default;
};

/// What a conversion does to the readings, beside how they are read.
struct ConversionOptions {
  ReadChoices Reading;
  std::optional<CoordinateSystem> Crs;  ///< told; else UTM for geographic positions, `local` for others
  std::optional<double> JumpMetres;     ///< 0: off; by default 10, or 5 times the median step if that is more
  double LagSeconds = 0;
  std::optional<AntennaOffset> Offset;
  std::vector<std::filesystem::path> Boundaries, Exclusions;
  double InsetMetres = 0;
  NonPositive NonPositives = NonPositive::Keep;
  double StillMetres =
      0.20;  ///< readings nearer than this to a site's first one join it; 0: equal centimetres
  Repeats RepeatsAs = Repeats::Mean;
  int MedianSites = 0;  ///< odd; 0: off
  RowChoices Rows;
  double ThinMetres = 0;  ///< 0: off

  bool operator==(const ConversionOptions&) const = default;
};

}  // namespace veln
