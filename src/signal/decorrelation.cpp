#include "signal/decorrelation.h"

#include "survey/statistics.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <cmath>
#include <utility>
#include <vector>

namespace veln {

namespace {

constexpr double LevelStep = 100;
constexpr double LargestCorrelation = 1 - 1E-12;

struct DecorrelatedSignals {
  std::vector<double> Z1, Z2;  // Z2 stays empty with one signal
};

[[noreturn]] void RefuseColumn(const SurveyState& state, std::size_t column, const char* cause)
{
  throw Refusal("Error!  The signal column \"" + state.SignalLabel.at(column) + "\" " + cause +
                "\nThe signal data can not be decorrelated.");
}

/// Mean and deviation of one column, which must be spread out.
Moments SpreadOf(const SurveyState& state, std::size_t column)
{
  const auto& signal = column == 0 ? state.Signal1 : state.Signal2;
  if (IsConstant(signal)) {
    RefuseColumn(state, column, "is constant: all its values are equal.");
  }
  const Moments moments = MeanStd(signal);
  if (!std::isfinite(moments.Std) || moments.Std == 0) {
    RefuseColumn(state, column, "holds values too large or too small for its standard deviation.");
  }
  return moments;
}

DecorrelatedSignals DecorrelatePair(const SurveyState& state)
{
  constexpr double HalfRoot = 0.707107;  // six decimals of 1 / sqrt(2)
  const Moments first = SpreadOf(state, 0);
  const Moments second = SpreadOf(state, 1);
  const auto r = Correlation(state.Signal1, state.Signal2);
  if (!r) {
    throw Refusal(
        "Error!  The values of the two signal columns are too large or too small\n"
        "for their correlation.  The signal data can not be decorrelated.");
  }
  if (std::abs(*r) >= LargestCorrelation) {
    throw Refusal(
        "Error!  The two signal columns are perfectly correlated (r = " + FormatNumber(*r, "0.0000") +
        "),\nso that the second tells nothing new.  The signal data can not be decorrelated.");
  }
  DecorrelatedSignals result;
  result.Z1.reserve(state.Signal1.size());
  result.Z2.reserve(state.Signal1.size());
  const double sumScale = std::sqrt(1 + *r);
  const double differenceScale = std::sqrt(1 - *r);
  for (std::size_t i = 0; i < state.Signal1.size(); ++i) {
    const double u1 = (state.Signal1[i] - first.Mean) / first.Std;
    const double u2 = (state.Signal2[i] - second.Mean) / second.Std;
    result.Z1.push_back(((u1 + u2) * HalfRoot) / sumScale);
    result.Z2.push_back(((u1 - u2) * HalfRoot) / differenceScale);
  }
  return result;
}

DecorrelatedSignals DecorrelateOne(const SurveyState& state)
{
  const Moments moments = SpreadOf(state, 0);
  DecorrelatedSignals result;
  result.Z1.reserve(state.Signal1.size());
  for (const double value : state.Signal1) {
    result.Z1.push_back((value - moments.Mean) / moments.Std);
  }
  return result;
}

DecorrelationCounts ClassifySites(SurveyState& state, const DecorrelationLevels& levels)
{
  const double maskingLevel = levels.Masking / LevelStep;
  const double outlierLevel = levels.Outlier / LevelStep;
  DecorrelationCounts counts;
  for (std::size_t i = 0; i < state.SiteStatus.size(); ++i) {
    const double d = SignalDistance(state, i);
    state.SiteStatus[i] = site_status::Free;
    if (d >= maskingLevel && d < outlierLevel) {
      ++counts.MaskedCount;
      state.SiteStatus[i] = site_status::Masked;
    }
    if (d >= outlierLevel) {
      ++counts.OutlierCount;
      state.SiteStatus[i] = site_status::Outlier;
    }
  }
  return counts;
}

}  // namespace

double SignalDistance(const SurveyState& state, std::size_t site)
{
  const double z1 = state.Decorr1[site];
  if (state.SignalCount == 1) {
    return std::abs(z1);
  }
  const double z2 = state.Decorr2[site];
  return std::sqrt(z1 * z1 + z2 * z2);
}

DecorrelationCounts DecorrelateSignals(SurveyState& state, const DecorrelationLevels& levels)
{
  state.Menu.Require(MenuEntry::mnuSigD, "Signal decorrelation");
  DecorrelatedSignals signals = state.SignalCount == 2 ? DecorrelatePair(state) : DecorrelateOne(state);
  if (!AllFinite(signals.Z1) || !AllFinite(signals.Z2)) {
    throw Refusal(
        "Error!  The signal values are too large or too small.\nThe signal data can not be decorrelated.");
  }
  state.Decorr1 = std::move(signals.Z1);
  state.Decorr2 = std::move(signals.Z2);
  const DecorrelationCounts counts = ClassifySites(state, levels);
  state.DecorrDone = true;
  state.Decorrelation = {levels, counts};
  state.Menu.Apply(WorkflowEvent::SignalsDecorrelated);
  return counts;
}

}  // namespace veln
