#pragma once

#include "toolkit/dialogs.h"
#include "toolkit/file_lock.h"
#include "workspace/survey_state.h"

#include <string>
#include <vector>

namespace veln {

/// What `frmProject` shows: the projects, the chosen one, the texts as typed, and which controls are visible.
struct ProjectForm {
  std::vector<std::string> List1;  ///< the projects
  std::string LblPrj;              ///< the chosen project
  std::string Text1;               ///< name of a new project, as typed
  std::string Text2;               ///< field description
  std::string Text3;               ///< field ID, as typed
  std::string LblFID;              ///< the complete field ID
  bool CreationVisible = false;    ///< `Label3`, `Text1`, `Command3` and `Command4`
  bool LblFIDVisible = false;
  bool Command1Visible = false;
};

/// A key of one of the filtered boxes: what the box held before, what it would hold behind the key.
struct Keystroke {
  char32_t Character = 0;  ///< 0 for backspace and other deletions
  std::string Before;
  std::string After;
};

/// Opens the window: lists the projects. If `data` can't be listed, beeps and warns, and the list is empty.
ProjectForm LoadProjectForm(const SurveyState& state, Dialogs& dialogs);

/// A click on a project of the list.
void ChooseProject(ProjectForm& form, const std::string& project);

/// `Command5` "New": begins the creation of a project.
void BeginProjectCreation(ProjectForm& form);

/// `Command4` "Cancel" of the creation.
void CancelProjectCreation(ProjectForm& form);

/// `Command3` "Create": makes the directory of the project in `Text1` and chooses it. Tells a name against
/// the rule or the system's reason in a message box and changes nothing then.
void CreateProject(ProjectForm& form, const SurveyState& state, Dialogs& dialogs);

/// The keystroke filter of `Text1`: takes the key over, or beeps and drops it (false).
bool KeyInProjectName(ProjectForm& form, const Keystroke& key, Dialogs& dialogs);

/// The keystroke filter of `Text3`. `Command1` and `LblFID` show on the fourth character alone.
bool KeyInFieldId(ProjectForm& form, const Keystroke& key, Dialogs& dialogs);

/// `Command1` "OK": the overwrite check, then project, field ID and description go into the record, and
/// `field` is the lock of that field in place of an earlier one's. False: the user is choosing another code,
/// and the window stays open. Throws Refusal if another process works on the field.
bool AcceptProjectForm(ProjectForm& form, SurveyState& state, FileLock& field, Dialogs& dialogs);

}  // namespace veln
