#pragma once

#include "workspace/survey_state.h"

#include <optional>
#include <span>
#include <vector>

namespace veln {

/// The ends of a series.
struct Limits {
  double Minimum = 0;
  double Maximum = 0;
};

/// What `MeanStd` tells of a series.
struct Moments {
  double Mean = 0;
  double Std = 0;  ///< sample standard deviation, divisor n - 1
  double Count = 0;
};

/// Lowest and highest value. They start from the sentinels 1E+24 and -1E+24, which stand when no value beats
/// them.
Limits MinMax(std::span<const double> series);

/// Mean and sample standard deviation, in two passes in index order. Throws Refusal for fewer than two
/// values.
Moments MeanStd(std::span<const double> series);

/// Pearson's correlation of two series of one length, with the sums of squares rebuilt from the standard
/// deviations. Empty when it is not defined: a series is constant, or a sum leaves the doubles.
std::optional<double> Correlation(std::span<const double> x, std::span<const double> y);

/// Whether all values are equal. (The computed deviation of equal values may be a rounding residue.)
bool IsConstant(std::span<const double> series);

/// Whether no value is infinite or not a number.
bool AllFinite(std::span<const double> series);

/// Moments and limits of one signal.
struct SignalStatistics {
  Moments Mean;
  Limits Range;
};

SignalStatistics DescribeSignal(std::span<const double> signal);

/// Whether mean, deviation and limits are all numbers: false for signals whose squares leave the doubles.
bool IsFinite(const SignalStatistics& statistics);

/// Recomputes the statistics panel from the signals and shows it. An undefined correlation shows as an empty
/// text.
void UpdateSignalStats(SurveyState& state);

}  // namespace veln
