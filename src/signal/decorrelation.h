#pragma once

#include "workspace/survey_state.h"

namespace veln {

inline constexpr int LowestLevel = 300;
inline constexpr int HighestLevel = 600;

/// The distance of a site from the centre of the signal cloud in standard deviations: |z1|, or with two
/// signals sqrt(z1 x z1 + z2 x z2), the Mahalanobis distance of the raw signals.
double SignalDistance(const SurveyState& state, std::size_t site);

/// Standardises the signals, forms the uncorrelated z1 and z2 (the principal components of the 2 x 2
/// correlation matrix, each in units of its own standard deviation), and sorts all sites into free, masked
/// and outlier. Throws Refusal, with the record as it was, when the step is closed, when a signal is
/// constant, when the two signals are the same but for scale (|r| at or above 1 - 1E-12), or when a value
/// leaves the doubles.
DecorrelationCounts DecorrelateSignals(SurveyState& state, const DecorrelationLevels& levels);

}  // namespace veln
