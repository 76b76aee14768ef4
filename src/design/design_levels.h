#pragma once

#include <array>
#include <span>

namespace veln {

/// The three sizes of a response surface design: `Option1`, `Option2` and `Option3` of `frmSRS`.
enum class DesignSize { Limited, Standard, Full };

inline constexpr int MostDesignPoints = 20;
inline constexpr int FewestAvailable = 24;  ///< available sites that any design needs
inline constexpr int LowestDFactor = 80;    ///< hundredths
inline constexpr int HighestDFactor = 120;  ///< hundredths
inline constexpr int PlainDFactor = 100;    ///< hundredths

/// Target points of a size: 5, 10 or 18.
int TargetPoints(DesignSize size);

/// Support sites of a size: 1, 2 or 2.
int SupportSites(DesignSize size);

/// Sample size: the target points, and the support sites if they are included (6, 12, 20 or 5, 10, 18).
int SampleSize(DesignSize size, bool includeSupportSites);

/// Available sites that a size needs, with or without support sites: 24, 48 or 80.
int SitesNeeded(DesignSize size);

/// The size itself, or the largest one below it for which so many available sites suffice; the limited size
/// is never left.
DesignSize AllowedSize(DesignSize size, int available);

/// The target levels of one design point, in standard deviations of the decorrelated signals: z1 of a
/// one-signal survey, z1 and z2 of a two-signal survey.
using LevelRow = std::array<double, 3>;

/// What a point asks for in a survey of one or two signals: one level a signal.
std::span<const double> TargetLevels(const LevelRow& row, int signalCount);

/// `DLevels`: the levels of points 1 to 18, at index 0 to 17.
using DesignLevels = std::array<LevelRow, 18>;

/// Builds the table of target levels, with every level multiplied by the D-factor. The limited size alone has
/// a point at the centre of the pattern.
DesignLevels InitDLevels(DesignSize size, double dFactor);

}  // namespace veln
