// From the start of the program to its end, by mouse and keys; the same steps by the engine give the same
// bytes.

#include "desktop/desktop_fixture.h"
#include "forms/srs_form.h"
#include "signal/decorrelation.h"
#include "signal/validation.h"
#include "support/surveys.h"
#include "survey/survey_export.h"
#include "survey/survey_import.h"
#include "workspace/project.h"

namespace veln {
namespace {

class WholeRoad : public MainWindowTest {
 protected:
  using FileTexts = std::map<std::string, std::string>;

  void SetUp() override
  {
    RawSurvey survey = TransectSurvey(20, 25);
    survey.Signal1[7] = 90000;
    WriteText(RawFile(), RawFileText(survey, LayoutOf(survey, true)));
    MainWindowTest::SetUp();
  }

  [[nodiscard]] std::filesystem::path RawFile() const { return Directory / "raw.txt"; }

  void SetProjectAndImport()
  {
    ASSERT_TRUE(Choose("mnuProject"));
    Click("frmProject", "Command5");
    Type("frmProject", "Text1", "farm");
    Click("frmProject", "Command3");
    Type("frmProject", "Text2", "North block");
    Type("frmProject", "Text3", "ab12");
    Click("frmProject", "Command1");
    ASSERT_TRUE(Choose("mnuITSF"));
    Type("frmStructure", "Text3", RawFile().c_str());
    for (const char* choice : {"Check1", "Check2", "Option1", "Command1"}) {
      Click("frmStructure", choice);
    }
  }

  void Decorrelate()
  {
    if (Window("frmSigDecorr") == nullptr) {
      ASSERT_TRUE(Choose("mnuSigD"));
    }
    Click("frmSigDecorr", "Command1");
    Click("frmSigDecorr", "Command2");
  }

  void DeleteOutliersAndAccept()
  {
    Decorrelate();
    ASSERT_TRUE(Choose("mnuSigV"));
    Click("frmSigVal", "Command2");
    Decorrelate();
    ASSERT_TRUE(Choose("mnuSigV"));
    Asked.Answer(true);  // a file of the transition scores
    for (const char* choice : {"ChkEB1", "OptEB2", "Check2", "Command2"}) {
      Click("frmSigVal", choice);
    }
  }

  void DesignAndLeave()
  {
    ASSERT_TRUE(Choose("mnuSRS"));
    Click("frmSRS", "Command2");
    Click("frmSRS", "Command4");
    Click("frmSRS", "Command3");
    ASSERT_FALSE(Main->close());
    HandTimers::Tick(*Window("frmOutFD"), 2);
    Click("frmOutFD", "Command1");
  }

  /// The same steps without a window, into the same files.
  SurveyState StepsOfTheEngine()
  {
    SurveyState state;
    state.ProgramDir = Shared.State.ProgramDir;
    ScriptedDialogs dialogs({true});
    AcceptProject(state, "farm", "ab12", "North block");
    ImportSurvey(state, {RawFile().string(),
                         {true, true, true},
                         {"log(EMv)", "log(EMh)"},
                         ConductivityUnits::MilliSiemens,
                         true});
    DecorrelateSignals(state, {});
    EXPECT_EQ(DeleteOutliers(state), 1);
    DecorrelateSignals(state, {});
    AcceptConfiguration(state, {BufferExtent::RowEnds, true}, dialogs, Shared.Now());
    SrsForm form = OpenSrs(state, dialogs);
    RunObserver nobody;
    RunDesign(form, state, dialogs, nobody);
    SaveDesign(form, state, dialogs, Shared.Now());
    MakeOutF(state);
    return state;
  }

  FileTexts ProjectFiles()
  {
    FileTexts texts;
    for (const auto& file : std::filesystem::directory_iterator(Directory / "data" / "farm")) {
      texts[file.path().filename()] = ReadText(file.path());
    }
    return texts;
  }
};

TEST_F(WholeRoad, WritesTheFilesOfTheSameStepsByTheEngine)
{
  SetProjectAndImport();
  DeleteOutliersAndAccept();
  DesignAndLeave();
  EXPECT_EQ(Ended, 1);
  const FileTexts written = ProjectFiles();
  EXPECT_EQ(written.size(), 6) << "info, scores, three of the design, export";
  std::filesystem::remove_all(Directory / "data" / "farm");
  std::filesystem::create_directory(Directory / "data" / "farm");
  const SurveyState engine = StepsOfTheEngine();
  EXPECT_EQ(written, ProjectFiles());
  EXPECT_EQ(Shared.State.SiteStatus, engine.SiteStatus);
}

}  // namespace
}  // namespace veln
