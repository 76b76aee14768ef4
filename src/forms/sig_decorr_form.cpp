#include "forms/sig_decorr_form.h"

#include "workspace/captions.h"

#include <algorithm>

namespace veln {

SigDecorrForm LoadSigDecorrForm(const SurveyState& state)
{
  SigDecorrForm form;
  form.Levels = state.Decorrelation.Levels;
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
  const DecorrelationTexts texts = DecorrelationTextsOf(state);
  form.Label3 = texts.Lblmstdcnt;
  form.Label4 = texts.Lblostdcnt;
  form.Label5 = texts.LblDcnt;
  form.ResultsVisible = true;
  form.Command3Visible = form.Counts.OutlierCount >= 1;
}

}  // namespace veln
