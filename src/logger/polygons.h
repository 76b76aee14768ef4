#pragma once

#include "geodesy/transverse_mercator.h"

#include <vector>

namespace veln {

/// A closed line; the last point joins the first.
using Ring = std::vector<PlanePoint>;

/// An area in the plane: what its outer ring holds without its holes.
class Polygon {
 public:
  /// The first ring is the outer one, the others are holes.
  explicit Polygon(std::vector<Ring> rings);

  /// Whether a place lies in the area or on its edge.
  [[nodiscard]] bool Holds(const PlanePoint& place) const;
  /// The distance to the nearest edge, holes' edges among them.
  [[nodiscard]] double DistanceToEdge(const PlanePoint& place) const;
  [[nodiscard]] const std::vector<Ring>& Rings() const { return rings_; }

 private:
  std::vector<Ring> rings_;
  PlanePoint low_, high_;  ///< corners of the outer ring's box
};

}  // namespace veln
