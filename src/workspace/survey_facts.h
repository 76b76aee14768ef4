#pragma once

#include <array>
#include <optional>
#include <string>

namespace veln {

/// How the sites were visited.
enum class SurveyKind { Grid, Transect };

/// Of the conductivities, per metre.
enum class ConductivityUnits { MilliSiemens, DeciSiemens };

/// The ends of a series.
struct Limits {
  double Minimum = 0;
  double Maximum = 0;

  [[nodiscard]] double Width() const { return Maximum - Minimum; }
  [[nodiscard]] double Half() const { return Width() / 2; }
  [[nodiscard]] double Middle() const { return Half() + Minimum; }
  static Limits Around(double centre, double half) { return {centre - half, centre + half}; }
  bool operator==(const Limits&) const = default;
};

/// What `MeanStd` tells of a series.
struct Moments {
  double Mean = 0;
  double Std = 0;  ///< sample standard deviation, divisor n - 1
  double Count = 0;
  bool operator==(const Moments&) const = default;
};

/// Moments and limits of one signal.
struct SignalStatistics : Moments, Limits {
  bool operator==(const SignalStatistics&) const = default;
};

/// One row of the panel "Signal Statistics"; the count is 0 until it is first refreshed.
struct SignalFacts {
  std::string Label;
  SignalStatistics Statistics;
  bool operator==(const SignalFacts&) const = default;
};

/// The panel "Signal Statistics": labels and statistics as they were when it was last refreshed together.
/// A refused transformation takes new labels and leaves these.
struct SignalPanel {
  std::array<SignalFacts, 2> Rows;
  std::optional<double> Correlation;  ///< Pearson's, of two signals, where it is defined
  bool operator==(const SignalPanel&) const = default;
};

/// The two limits of a site's distance from the centre of the signal cloud, in hundredths of a standard
/// deviation: 300 to 600, the masking level never above the outlier level.
struct DecorrelationLevels {
  int Masking = 350;
  int Outlier = 450;
  bool operator==(const DecorrelationLevels&) const = default;
};

/// How many sites a decorrelation set aside.
struct DecorrelationCounts {
  int MaskedCount = 0;   ///< at or above the masking level, below the outlier level
  int OutlierCount = 0;  ///< at or above the outlier level
  bool operator==(const DecorrelationCounts&) const = default;
};

/// The last decorrelation. Its counts outlast the deletion of what it found.
struct DecorrelationFacts {
  DecorrelationLevels Levels;
  DecorrelationCounts Counts;
  bool operator==(const DecorrelationFacts&) const = default;
};

/// What became of an algorithm that a transect survey offers.
enum class AlgorithmState { Invoked, NotAsked, NotApplicable };

/// How the configuration was accepted.
struct AlgorithmFacts {
  AlgorithmState EdgeBuffering = AlgorithmState::Invoked;
  AlgorithmState TransitionAnalysis = AlgorithmState::Invoked;
  bool operator==(const AlgorithmFacts&) const = default;
};

/// A saved response surface design; its size is 0 until it is saved.
struct DesignFacts {
  int SampleSize = 0;
  double OptCriteria = 0;
  bool operator==(const DesignFacts&) const = default;
};

/// How the field lies after coordinate translations: mirrored in x or not, then turned.
struct FieldOrientation {
  int Degrees = 0;  ///< -180 to 179, positive counter-clockwise
  bool Mirrored = false;
  /// Whether x and y run as in the survey's file.
  [[nodiscard]] bool AsSurveyed() const { return Degrees == 0 && !Mirrored; }
  bool operator==(const FieldOrientation&) const = default;
};

}  // namespace veln
