#include "workspace/output_view.h"

#include "support/files.h"
#include "support/refusals.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veln {

using testing::ElementsAre;
using testing::IsEmpty;

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

}  // namespace

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
  dialogs.ChooseFile("/veln/data/north.farm/AB12 copy of info.txt");
  ViewOutputFiles(AcceptedField(), dialogs);
  EXPECT_THAT(dialogs.Said,
              ElementsAre("open: File View", "shell: [gedit] [/veln/data/north.farm/AB12 copy of info.txt]"));
}

TEST(OutputView, CancellingIsSilentAndAMissingEditorIsTold)
{
  ScriptedDialogs cancelled;
  ViewOutputFiles(AcceptedField(), cancelled);
  EXPECT_THAT(cancelled.Said, ElementsAre("open: File View"));

  ScriptedDialogs failing;
  failing.ChooseFile("/a.txt");
  failing.FailShell("gedit: No such file or directory");
  EXPECT_EQ(RefusalOf([&] { ViewOutputFiles(AcceptedField(), failing); }),
            "gedit: No such file or directory");
}

TEST(OutputView, NothingIsOfferedBeforeAnAcceptedConfiguration)
{
  ScriptedDialogs dialogs;
  EXPECT_NE(RefusalOf([&] { ViewOutputFiles(SurveyState{}, dialogs); }), "not refused");
  EXPECT_THAT(dialogs.Said, IsEmpty());
}

TEST(OutputView, HelpDocumentsAreReadFromTheirFolder)
{
  const TemporaryDirectory folder;
  SurveyState state;
  state.ProgramDir = folder.Path();
  WriteText(folder / "helpdocs" / "hdoc11b.rtf", "{\\rtf1 rules}\r\n");
  EXPECT_EQ(ReadHelpDocument(state, "hdoc11b"), "{\\rtf1 rules}\r\n");
  EXPECT_EQ(RefusalOf([&] { ReadHelpDocument(state, "hdoc04"); }),
            "Warning!  File resource error.  VELN can not find the following file:\n" +
                (folder / "helpdocs/hdoc04.rtf").string());
}

TEST(OutputView, PrintingHelpOpensAScratchCopy)
{
  const TemporaryDirectory folder;
  SurveyState state;
  state.ProgramDir = folder.Path();
  state.TextEditorPath = "xdg-open ";
  ScriptedDialogs dialogs;
  WriteText(folder / "helpdoc.rtf", "an older copy");
  PrintHelpDocument(state, "{\\rtf1 help}", dialogs);
  EXPECT_EQ(ReadText(folder / "helpdoc.rtf"), "{\\rtf1 help}");
  EXPECT_THAT(dialogs.Said, ElementsAre("shell: [xdg-open] [" + (folder / "helpdoc.rtf").string() + "]"));
}

}  // namespace veln
