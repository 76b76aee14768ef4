#include "survey/signal_transform.h"

#include "survey/statistics.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace veln {

namespace {

/// The signals with what tells how they are held: worked on aside, so that a refusal changes nothing.
struct HeldSignals {
  std::vector<std::vector<double>> Columns;
  bool Log;
  ConductivityUnits Units;
};

template <class Step>
void EachValue(HeldSignals& signals, Step step)
{
  for (auto& column : signals.Columns) {
    std::ranges::transform(column, column.begin(), step);
  }
}

void ApplyLog(HeldSignals& signals)
{
  const auto positive = [](double value) { return value > 0; };
  for (const auto& column : signals.Columns) {
    if (!std::ranges::all_of(column, positive)) {
      throw Refusal(
          "Error!  Non-positive signal data detected!\nThis signal data can not be log transformed.");
    }
  }
  EachValue(signals, [](double value) { return std::log(value); });
  signals.Log = true;
}

void RemoveLog(HeldSignals& signals)
{
  EachValue(signals, [](double value) { return std::exp(value); });
  signals.Log = false;
}

void Rescale(HeldSignals& signals, ConductivityUnits units)
{
  const double factor = units == ConductivityUnits::MilliSiemens ? 100 : 0.01;
  if (signals.Log) {
    const double shift = std::log(factor);
    EachValue(signals, [shift](double value) { return value + shift; });
  } else {
    EachValue(signals, [factor](double value) { return value * factor; });
  }
  signals.Units = units;
}

bool AreComputable(const HeldSignals& signals)
{
  const auto describable = [](const std::vector<double>& column) {
    return AllFinite(column) && IsFinite(DescribeSignal(column));
  };
  return std::ranges::all_of(signals.Columns, describable) &&
         (signals.Columns.size() == 1 || Correlation(signals.Columns[0], signals.Columns[1]));
}

void RequireStatistics(const HeldSignals& signals)
{
  if (!AreComputable(signals)) {
    throw Refusal(
        "Error!  The changed signal data would be too large or too small to compute with!\n"
        "The signal data have been left as they were.");
  }
}

}  // namespace

BasicStatsForm LoadBasicStatsForm(const SurveyState& state)
{
  BasicStatsForm form;
  form.Labels = state.SignalLabel;
  form.Text2Visible = state.SignalCount == 2;
  form.Check1Enabled = !state.LogTransform;
  form.Check2Enabled = state.LogTransform;
  form.Check3Enabled = state.SignalUnits == ConductivityUnits::DeciSiemens;
  form.Check4Enabled = !form.Check3Enabled;
  return form;
}

void ComputeSignals(SurveyState& state, const BasicStatsForm& form)
{
  state.Menu.Require(MenuEntry::mnuStats, "Signal transformation");
  state.SignalLabel = form.Labels;
  HeldSignals signals{{state.Signal1}, state.LogTransform, state.SignalUnits};
  if (state.SignalCount == 2) {
    signals.Columns.push_back(state.Signal2);
  }
  if (form.Check1 && !signals.Log) {
    ApplyLog(signals);
  }
  if (form.Check2 && signals.Log) {
    RemoveLog(signals);
  }
  if (form.Check3) {
    Rescale(signals, ConductivityUnits::MilliSiemens);
  }
  if (form.Check4) {
    Rescale(signals, ConductivityUnits::DeciSiemens);
  }
  RequireStatistics(signals);

  state.LogTransform = signals.Log;
  state.SignalUnits = signals.Units;
  if (state.SignalCount == 2) {
    state.Signal2 = std::move(signals.Columns[1]);
  }
  state.Signal1 = std::move(signals.Columns[0]);
  UpdateSignalStats(state);
}

}  // namespace veln
