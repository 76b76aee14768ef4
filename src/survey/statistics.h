#pragma once

#include "workspace/survey_facts.h"
#include "workspace/survey_state.h"

#include <optional>
#include <span>
#include <vector>

namespace veln {

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
SignalStatistics DescribeSignal(std::span<const double> signal);

/// Whether mean, deviation and limits are all numbers: false for signals whose squares leave the doubles.
bool IsFinite(const SignalStatistics& statistics);

/// Refreshes the statistics panel from the labels and signals. With one signal its second row stays.
void UpdateSignalStats(SurveyState& state);

}  // namespace veln
