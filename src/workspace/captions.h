#pragma once

#include "workspace/survey_state.h"

#include <string>

namespace veln {

// The texts that panels, files and pictures show of the record's facts. What is shown is what is used.

/// "Grid" or "Transect".
const char* SurveyTypeText(SurveyKind kind);

/// "mS/m" or "dS/m".
const char* UnitsText(ConductivityUnits units);

/// Of the signals: "natural log" or "none".
const char* SignalTransformText(bool log);

/// A level of the decorrelation: 350 is "3.50".
std::string LevelText(int level);

/// "invoked", "none" or "n/a".
const char* AlgorithmText(AlgorithmState state);

/// One row of the panel "Signal Statistics"; nothing but its label before its first refresh.
struct SignalTexts {
  std::string LblNm, LblSz, LblMu, LblStd, LblMn, LblMx;
};
SignalTexts TextsOf(const SignalFacts& signal);

/// `LblCorr`; empty where the correlation is not defined.
std::string PanelCorrelation(const SignalPanel& panel);

/// The panel "Decorrelation Statistics".
struct DecorrelationTexts {
  std::string Lblmstd, Lblmstdcnt, Lblostd, Lblostdcnt, LblDcnt, LblVcnt;
};
DecorrelationTexts DecorrelationTextsOf(const SurveyState& state);

/// One row of the panel "Sample Site Designs"; empty until the design is saved.
struct DesignTexts {
  std::string Lblssn, Lblssoc;
};
DesignTexts TextsOf(const DesignFacts& design);

}  // namespace veln
