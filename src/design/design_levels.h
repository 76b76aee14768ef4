#pragma once

#include <array>
#include <string>
#include <vector>

namespace veln {

/// The three sizes of a response surface design: `Option1`, `Option2` and `Option3` of `frmSRS`.
enum class DesignSize { Limited, Standard, Full };

inline constexpr int MostDesignPoints = 20;

/// Target points of a size: 5, 10 or 18.
int TargetPoints(DesignSize size);

/// Support sites of a size: 1, 2 or 2.
int SupportSites(DesignSize size);

/// Sample size: the target points, and the support sites if they are included (6, 12, 20 or 5, 10, 18).
int SampleSize(DesignSize size, bool includeSupportSites);

/// The target levels of one design point, in standard deviations of the decorrelated signals: z1 of a
/// one-signal survey, z1 and z2 of a two-signal survey.
using LevelRow = std::array<double, 3>;

/// `DLevels`: the levels of points 1 to 18, at index 0 to 17.
using DesignLevels = std::array<LevelRow, 18>;

/// Builds the table of target levels, with every level multiplied by the D-factor. The limited size alone has
/// a point at the centre of the pattern.
DesignLevels InitDLevels(DesignSize size, double dFactor);

/// What the listing of the design levels reads of the design window.
struct LevelListing {
  DesignSize Size = DesignSize::Standard;
  std::string DFactorText;  ///< "1.00"
  std::string LblSS;        ///< sample size as shown
  std::string LblSC;        ///< number of signal columns as shown, with its leading blank
  int SignalCount = 1;
  bool Parsing = false;  ///< "Invoke Parsing" is on
  bool IncludeSupportSites = true;
  bool TransitionCounts = false;  ///< transition analysis was done and is not ignored
};

/// The lines of `frmDList`, for the levels in force.
std::vector<std::string> ListDLevels(const LevelListing& listing, const DesignLevels& levels);

}  // namespace veln
