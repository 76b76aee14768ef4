#include "survey/statistics.h"

#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr double Sentinel = 1E+24;

}  // namespace

Limits MinMax(std::span<const double> series)
{
  Limits limits{Sentinel, -Sentinel};
  for (const double value : series) {
    limits.Minimum = std::min(limits.Minimum, value);
    limits.Maximum = std::max(limits.Maximum, value);
  }
  return limits;
}

Moments MeanStd(std::span<const double> series)
{
  if (series.size() < 2) {
    throw Refusal("A mean and a standard deviation need at least two values.");
  }
  double sum = 0;
  for (const double value : series) {
    sum = sum + value;
  }
  const auto count = static_cast<double>(series.size());
  const double mean = sum / count;
  double squares = 0;
  for (const double value : series) {
    squares = squares + (value - mean) * (value - mean);
  }
  return {mean, std::sqrt(squares / (count - 1)), count};
}

std::optional<double> Correlation(std::span<const double> x, std::span<const double> y)
{
  if (IsConstant(x) || IsConstant(y)) {
    return std::nullopt;
  }
  const Moments momentsX = MeanStd(x);
  const Moments momentsY = MeanStd(y);
  const double sxx = momentsX.Std * momentsX.Std * (momentsX.Count - 1);
  const double syy = (momentsY.Count - 1) * momentsY.Std * momentsY.Std;
  double sxy = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    sxy = sxy + (x[i] - momentsX.Mean) * (y[i] - momentsY.Mean);
  }
  const double product = syy * sxx;
  const double r = sxy / std::sqrt(product);
  if (product == 0 || !std::isfinite(product) || !std::isfinite(r)) {
    return std::nullopt;
  }
  return r;
}

bool IsConstant(std::span<const double> series)
{
  return std::ranges::adjacent_find(series, std::ranges::not_equal_to{}) == series.end();
}

bool AllFinite(std::span<const double> series)
{
  return std::ranges::all_of(series, [](double value) { return std::isfinite(value); });
}

SignalStatistics DescribeSignal(std::span<const double> signal)
{
  return {MeanStd(signal), MinMax(signal)};
}

bool IsFinite(const SignalStatistics& statistics)
{
  return std::isfinite(statistics.Mean) && std::isfinite(statistics.Std) &&
         std::isfinite(statistics.Minimum) && std::isfinite(statistics.Maximum);
}

void UpdateSignalStats(SurveyState& state)
{
  state.Signals.Rows[0] = {state.SignalLabel[0], DescribeSignal(state.Signal1)};
  if (state.SignalCount == 2) {
    state.Signals.Rows[1] = {state.SignalLabel[1], DescribeSignal(state.Signal2)};
    state.Signals.Correlation = Correlation(state.Signal1, state.Signal2);
  }
}

}  // namespace veln
