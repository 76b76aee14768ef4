#include "workspace/survey_state.h"

namespace veln {

bool IsTransect(const SurveyState& state)
{
  return state.SurveyType == "Transect";
}

std::filesystem::path OutputPath(const SurveyState& state, const std::string& suffix)
{
  return state.ProgramDir / "data" / state.ProjectName / OutputName(state, suffix);
}

std::string OutputName(const SurveyState& state, const std::string& suffix)
{
  return state.FieldId + suffix;
}

}  // namespace veln
