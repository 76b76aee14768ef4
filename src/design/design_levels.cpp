#include "design/design_levels.h"

#include <cstddef>

namespace veln {

namespace {

constexpr std::size_t FirstInnerPoint = 10;  // index of point 11
constexpr std::size_t OuterOffset = 9;       // an inner point's outer one stands nine places before it

/// Column 0 of all points; columns 1 and 2 of points 1 to 10, the inner figure follows from them.
constexpr DesignLevels BaseLevels = {{{0.75, 0.75, 0},
                                      {2.5, 1.75, 1.75},
                                      {-2.5, -1.75, -1.75},
                                      {1.5, 1.75, -1.75},
                                      {-1.5, -1.75, 1.75},
                                      {2.0, 2.5, 0},
                                      {-2.0, -2.5, 0},
                                      {1.0, 0, 2.5},
                                      {-1.0, 0, -2.5},
                                      {-0.75, -0.75, 0},
                                      {2.25, 0, 0},
                                      {-2.25, 0, 0},
                                      {1.75, 0, 0},
                                      {-1.75, 0, 0},
                                      {1.25, 0, 0},
                                      {-1.25, 0, 0},
                                      {0.5, 0, 0},
                                      {-0.5, 0, 0}}};

}  // namespace

int TargetPoints(DesignSize size)
{
  constexpr std::array<int, 3> Points = {5, 10, 18};
  return Points.at(static_cast<std::size_t>(size));
}

int SupportSites(DesignSize size)
{
  return size == DesignSize::Limited ? 1 : 2;
}

int SampleSize(DesignSize size, bool includeSupportSites)
{
  return TargetPoints(size) + (includeSupportSites ? SupportSites(size) : 0);
}

int SitesNeeded(DesignSize size)
{
  constexpr std::array<int, 3> Needed = {FewestAvailable, 48, 80};
  return Needed.at(static_cast<std::size_t>(size));
}

DesignSize AllowedSize(DesignSize size, int available)
{
  for (const DesignSize larger : {DesignSize::Full, DesignSize::Standard}) {
    if (size == larger && available < SitesNeeded(larger)) {
      size = larger == DesignSize::Full ? DesignSize::Standard : DesignSize::Limited;
    }
  }
  return size;
}

std::span<const double> TargetLevels(const LevelRow& row, int signalCount)
{
  const std::span levels(row);
  return signalCount == 1 ? levels.first(1) : levels.subspan(1);
}

DesignLevels InitDLevels(DesignSize size, double dFactor)
{
  DesignLevels levels = BaseLevels;
  for (std::size_t i = FirstInnerPoint; i < levels.size(); ++i) {
    levels.at(i)[1] = 0.5 * levels.at(i - OuterOffset)[1];
    levels.at(i)[2] = 0.5 * levels.at(i - OuterOffset)[2];
  }
  if (size == DesignSize::Limited) {
    levels[0] = {0, 0, 0};
  }
  for (LevelRow& row : levels) {
    for (double& level : row) {
      level = level * dFactor;
    }
  }
  return levels;
}

}  // namespace veln
