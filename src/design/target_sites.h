#pragma once

#include "design/design_levels.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace veln {

/// A survey site in the working table of a design.
struct CandidateSite {
  static constexpr std::size_t None = std::numeric_limits<std::size_t>::max();

  double X = 0;
  double Y = 0;
  std::int16_t SiteId = 0;
  std::size_t Index = None;  ///< place in the survey

  [[nodiscard]] bool Exists() const { return Index != None; }
  bool operator==(const CandidateSite&) const = default;
};

/// The three candidates of a design point. The first stands in the design, the others are its alternates; a
/// support site has no alternates.
using PointCandidates = std::array<CandidateSite, 3>;

/// `TargetSites`: the candidates of design points 1 to 20, at index 0 to 19. Starts clear for each run, so
/// that no old site can come back.
using TargetSites = std::array<PointCandidates, MostDesignPoints>;

}  // namespace veln
