#include "forms/project_form.h"

#include "toolkit/file_store.h"
#include "toolkit/refusal.h"
#include "workspace/project.h"

#include <utility>

namespace veln {

namespace {

void HideFieldId(ProjectForm& form)
{
  form.Command1Visible = false;
  form.LblFIDVisible = false;
}

}  // namespace

ProjectForm LoadProjectForm(const SurveyState& state, Dialogs& dialogs)
{
  ProjectForm form;
  try {
    form.List1 = ListProjects(state.ProgramDir);
  } catch (const Refusal& refusal) {
    dialogs.Beep();
    dialogs.Inform(refusal.Message());
  }
  return form;
}

void ChooseProject(ProjectForm& form, const std::string& project)
{
  form.LblPrj = project;
}

void BeginProjectCreation(ProjectForm& form)
{
  form.CreationVisible = true;
  form.LblPrj.clear();
  form.Command1Visible = false;
}

void CancelProjectCreation(ProjectForm& form)
{
  form.CreationVisible = false;
}

void CreateProject(ProjectForm& form, const SurveyState& state, Dialogs& dialogs)
{
  if (!IsProjectName(form.Text1)) {
    dialogs.Beep();
    dialogs.Inform("Invalid Project Name!  Please try again...");
    return;
  }
  try {
    MakeDirectory(state.ProgramDir / "data" / form.Text1);
  } catch (const Refusal& refusal) {
    dialogs.Inform(refusal.Message());
    return;
  }
  form.LblPrj = form.Text1;
  if (form.LblFID.size() == FieldIdLength) {
    form.Command1Visible = true;
  }
  form.List1.push_back(form.Text1);
  form.CreationVisible = false;
}

bool KeyInProjectName(ProjectForm& form, const Keystroke& key, Dialogs& dialogs)
{
  const char32_t c = key.Character;
  if (c != 0 && !IsProjectNameCharacter(c)) {
    dialogs.Beep();
    return false;
  }
  form.Text1 = key.After;
  return true;
}

bool KeyInFieldId(ProjectForm& form, const Keystroke& key, Dialogs& dialogs)
{
  const bool passes = key.Character == 0 || IsFieldIdCharacter(key.Character);
  if (!passes) {
    dialogs.Beep();
  } else {
    form.Text3 = key.After;
  }
  const bool fourth = key.Before.size() == FieldIdLength - 1 && key.After.size() == FieldIdLength;
  if (passes && key.Character != 0 && !form.LblPrj.empty() && fourth) {
    form.LblFID = key.After;
    form.LblFIDVisible = true;
    form.Command1Visible = true;
  } else {
    HideFieldId(form);
  }
  return passes;
}

bool AcceptProjectForm(ProjectForm& form, SurveyState& state, FileLock& field, Dialogs& dialogs)
{
  const FieldPlace place = PlaceOfField(state.ProgramDir, form.LblPrj, form.LblFID);
  const bool own = field.Holds(FieldLockFile(place));
  FileLock taken = own ? FileLock() : TakeField(place, "veln-qtrd", std::chrono::milliseconds(0));
  if (!CheckAlphaCode(state.ProgramDir, form.LblPrj, form.LblFID, dialogs)) {
    HideFieldId(form);
    form.Text3.clear();
    return false;
  }
  AcceptProject(state, form.LblPrj, form.LblFID, form.Text2);
  if (!own) {
    field = std::move(taken);
  }
  return true;
}

}  // namespace veln
