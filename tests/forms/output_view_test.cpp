#include "forms/output_view.h"

#include "support/testing.h"

namespace veln {
namespace {

SurveyState AcceptedField()
{
  SurveyState state;
  state.ProgramDir = "/veln";
  state.ProjectName = "north.farm";
  state.FieldId = "AB12";
  state.TextEditorPath = " gedit";
  state.Menu.Apply(WorkflowEvent::ConfigurationAccepted);
  return state;
}

TEST(OutputView, DialogOffersTheFilesOfTheProjectAndOfTheField)
{
  const FileQuestion question = OutputFileQuestion(AcceptedField());
  std::string filter;
  for (const FileFilter& entry : question.Filter) {
    filter += entry.Text + "|" + entry.Pattern + "\n";
  }
  EXPECT_EQ(filter,
            "all VELN output text files (.txt)|*.txt\n"
            "AB12 VELN output text files (.txt)|AB12*.txt\n"
            "all VELN Trimble GPS files (.asc)|*.asc\n"
            "AB12 VELN Trimble GPS files (.asc)|AB12*.asc\n"
            "all files (*.*)|*.*\n");
  EXPECT_EQ(question.DialogTitle, "File View");
  EXPECT_EQ(question.InitDir, "/veln/data/north.farm");
  EXPECT_TRUE(question.MustExist);
}

TEST(OutputView, TheEditorIsStartedOnTheChosenFile)
{
  ScriptedDialogs dialogs;
  EXPECT_NE(RefusalOf([&] { ViewOutputFiles(SurveyState{}, dialogs); }), "not refused");
  EXPECT_THAT(dialogs.Said, IsEmpty()) << "nothing is offered before an accepted configuration";
  ViewOutputFiles(AcceptedField(), dialogs);  // cancelled
  dialogs.ChooseFile("/farm/AB12 copy of info.txt");
  dialogs.FailShell("gedit: No such file or directory");
  EXPECT_EQ(RefusalOf([&] { ViewOutputFiles(AcceptedField(), dialogs); }),
            "gedit: No such file or directory");
  EXPECT_THAT(dialogs.Said, ElementsAre("open: File View", "open: File View",
                                        "shell: [gedit] [/farm/AB12 copy of info.txt]"));
}

}  // namespace
}  // namespace veln
