#include "workspace/survey_state.h"

namespace veln {

bool IsTransect(const SurveyState& state)
{
  return state.Kind == SurveyKind::Transect;
}

bool HasDesign(const SurveyState& state)
{
  return state.DesignCount > 0 || state.ManualDesignDone;
}

std::filesystem::path OutputPath(const SurveyState& state, const std::string& suffix)
{
  return OutputFolder(state) / OutputName(state, suffix);
}

std::filesystem::path OutputFolder(const SurveyState& state)
{
  return state.ProgramDir / "data" / state.ProjectName;
}

std::string OutputName(const SurveyState& state, const std::string& suffix)
{
  return state.FieldId + suffix;
}

}  // namespace veln
