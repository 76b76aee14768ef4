#include "workspace/project.h"

#include "toolkit/file_set.h"
#include "toolkit/output_target.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <system_error>

namespace veln {

namespace fs = std::filesystem;

bool IsFieldIdCharacter(char32_t c)
{
  return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
}

bool IsProjectNameCharacter(char32_t c)
{
  return IsFieldIdCharacter(c) || c == U'_' || c == U'.';
}

bool IsProjectName(std::string_view name)
{
  return !name.empty() && name != "." && name != ".." &&
         std::ranges::all_of(name, [](unsigned char c) { return IsProjectNameCharacter(c); });
}

bool IsFieldId(std::string_view code)
{
  return code.size() == FieldIdLength &&
         std::ranges::all_of(code, [](unsigned char c) { return IsFieldIdCharacter(c); });
}

std::vector<std::string> ListProjects(const fs::path& programDir)
{
  std::error_code failure;
  std::vector<std::string> projects;
  for (fs::directory_iterator entry(programDir / "data", failure), end; !failure && entry != end;
       entry.increment(failure)) {
    std::error_code unreadable;
    if (entry->is_directory(unreadable)) {
      projects.push_back(entry->path().filename().string());
    }
  }
  if (failure) {
    throw Refusal("Warning: The VELN-QTRD program can not locate the veln2\\data subdirectory!");
  }
  std::ranges::sort(projects);
  return projects;
}

FieldPlace PlaceOfField(const fs::path& programDir, const std::string& project, const std::string& fieldId)
{
  return {programDir / "data" / project, project, fieldId};
}

void WriteFieldFiles(const SurveyState& state, const std::vector<ComposedFile>& files)
{
  WriteFileSet(files, {OutputFolder(state), state.FieldId});
}

std::string FieldInUseQuestion()
{
  return "Warning!  The 4-character Field ID code you have specified is already in use\n"
         "in the current data Project.  If you keep this code, you will automatically\n"
         "overwrite one or more existing VELN-QTRD output data and/or text files.\n"
         "\n"
         "Are you sure that you want to still use this code and overwrite these files?";
}

bool IsFieldInUse(const fs::path& programDir, const std::string& project, const std::string& fieldId)
{
  const fs::path file = programDir / "data" / project / (fieldId + "info.txt");
  std::error_code failure;
  const bool exists = fs::exists(file, failure);
  if (failure) {
    RefuseFile(file, "looked for", failure.value());
  }
  return exists;
}

bool CheckAlphaCode(const fs::path& programDir, const std::string& project, const std::string& fieldId,
                    Dialogs& dialogs)
{
  if (!IsFieldInUse(programDir, project, fieldId)) {
    return true;
  }
  dialogs.Beep();
  if (dialogs.Ask(Question::UseFieldAgain, FieldInUseQuestion())) {
    return true;
  }
  dialogs.Beep();
  dialogs.Inform("Please enter a new Field ID code now.");
  return false;
}

void AcceptProject(SurveyState& state, const std::string& project, const std::string& fieldId,
                   const std::string& description)
{
  state.Menu.Require(MenuEntry::mnuProject, "Setting a project");
  state.FieldDescription = description;
  state.ProjectName = project;
  state.FieldId = fieldId;
  state.Menu.Apply(WorkflowEvent::ProjectAccepted);
}

}  // namespace veln
