#include "workspace/captions.h"

#include "toolkit/number_text.h"

namespace veln {

const char* SurveyTypeText(SurveyKind kind)
{
  return kind == SurveyKind::Transect ? "Transect" : "Grid";
}

const char* UnitsText(ConductivityUnits units)
{
  return units == ConductivityUnits::DeciSiemens ? "dS/m" : "mS/m";
}

const char* SignalTransformText(bool log)
{
  return log ? "natural log" : "none";
}

std::string LevelText(int level)
{
  constexpr double Hundredths = 100;
  return FormatNumber(level / Hundredths, "0.00");
}

const char* AlgorithmText(AlgorithmState state)
{
  switch (state) {
    case AlgorithmState::Invoked:
      return "invoked";
    case AlgorithmState::NotAsked:
      return "none";
    default:
      return "n/a";
  }
}

SignalTexts TextsOf(const SignalFacts& signal)
{
  const SignalStatistics& statistics = signal.Statistics;
  if (statistics.Count == 0) {
    return {signal.Label, "", "", "", "", ""};
  }
  const auto shown = [](double value) { return FormatNumber(value, "##0.000"); };
  return {signal.Label,          GeneralForm(statistics.Count), shown(statistics.Mean),
          shown(statistics.Std), shown(statistics.Minimum),     shown(statistics.Maximum)};
}

std::string PanelCorrelation(const SignalPanel& panel)
{
  return panel.Correlation ? FormatNumber(*panel.Correlation, "#0.0000") : "";
}

DecorrelationTexts DecorrelationTextsOf(const SurveyState& state)
{
  if (!state.DecorrDone) {
    return {};
  }
  const auto& [levels, counts] = state.Decorrelation;
  return {LevelText(levels.Masking),           GeneralForm(counts.MaskedCount + counts.OutlierCount),
          LevelText(levels.Outlier),           GeneralForm(counts.OutlierCount),
          GeneralForm(state.DeletedSiteCount), GeneralForm(state.ValidationCount)};
}

DesignTexts TextsOf(const DesignFacts& design)
{
  if (design.SampleSize == 0) {
    return {};
  }
  return {NumberToString(design.SampleSize), NumberToString(RoundByFormat(design.OptCriteria, "0.00"))};
}

}  // namespace veln
