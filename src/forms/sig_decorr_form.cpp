#include "forms/sig_decorr_form.h"

#include "toolkit/number_text.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

int LevelOf(const std::string& text)
{
  constexpr double LevelStep = 100;
  return static_cast<int>(std::lround(ParseNumber(text).value_or(0) * LevelStep));
}

}  // namespace

SigDecorrForm LoadSigDecorrForm(const SurveyState& state)
{
  SigDecorrForm form;
  if (state.DecorrDone) {
    form.Levels = {LevelOf(state.Decorrelation.Lblmstd), LevelOf(state.Decorrelation.Lblostd)};
  }
  return form;
}

void MoveMaskingLevel(SigDecorrForm& form, int level)
{
  const bool held = level > form.Levels.Outlier;
  form.Levels.Masking = std::min(level, form.Levels.Outlier);
  form.Label11 = held ? "Attention: Masking STD level can not be set higher than Outlier STD level" : "";
}

void MoveOutlierLevel(SigDecorrForm& form, int level)
{
  const bool held = level < form.Levels.Masking;
  form.Levels.Outlier = std::max(level, form.Levels.Masking);
  form.Label11 = held ? "Attention: Outlier STD level can not be set lower than Masking STD level" : "";
}

void PerformDecorrelation(SigDecorrForm& form, SurveyState& state)
{
  form.Counts = DecorrelateSignals(state, form.Levels);
  form.Label3 = state.Decorrelation.Lblmstdcnt;
  form.Label4 = state.Decorrelation.Lblostdcnt;
  form.Label5 = state.Decorrelation.LblDcnt;
  form.ResultsVisible = true;
  form.Command3Visible = form.Counts.OutlierCount >= 1;
}

}  // namespace veln
