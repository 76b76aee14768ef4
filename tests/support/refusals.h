#pragma once

#include "toolkit/refusal.h"
#include "workspace/survey_state.h"

#include <gtest/gtest.h>

#include <string>

namespace veln {

/// The message that a step was refused with; "not refused" if it was not.
template <class Step>
std::string RefusalOf(Step step)
{
  try {
    step();
  } catch (const Refusal& refusal) {
    return refusal.Message();
  }
  return "not refused";
}

/// The same for a step that works on a record, which a refusal must leave as it was in every field.
template <class Step>
std::string WholeRefusalOf(const SurveyState& state, Step step)
{
  const SurveyState before = state;
  std::string message = RefusalOf(step);
  EXPECT_TRUE(state == before) << "the record changed, though the step was refused: " << message;
  return message;
}

}  // namespace veln
