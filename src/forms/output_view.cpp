#include "forms/output_view.h"

#include "toolkit/editor_command.h"
#include "toolkit/file_store.h"

namespace veln {

FileQuestion OutputFileQuestion(const SurveyState& state)
{
  const std::string& id = state.FieldId;
  return {"File View",
          {{"all VELN output text files (.txt)", "*.txt"},
           {id + " VELN output text files (.txt)", id + "*.txt"},
           {"all VELN Trimble GPS files (.asc)", "*.asc"},
           {id + " VELN Trimble GPS files (.asc)", id + "*.asc"},
           {"all files (*.*)", "*.*"}},
          state.ProgramDir / "data" / state.ProjectName,
          "",
          true};
}

void ViewOutputFiles(const SurveyState& state, Dialogs& dialogs)
{
  state.Menu.Require(MenuEntry::mnuVPOF, "Viewing output files");
  if (const auto file = dialogs.ShowOpen(OutputFileQuestion(state))) {
    dialogs.Shell(EditorCommand(state.TextEditorPath, file->string()));
  }
}

void PrintHelpDocument(const SurveyState& state, const std::string& content, Dialogs& dialogs)
{
  const std::filesystem::path copy = state.ProgramDir / "helpdoc.rtf";
  WriteFiles({{copy, content}});
  dialogs.Shell(EditorCommand(state.TextEditorPath, copy.string()));
}

}  // namespace veln
