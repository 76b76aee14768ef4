#include "forms/project_form.h"

#include "support/testing.h"

namespace veln {

namespace fs = std::filesystem;

namespace {

/// `frmProject` over a program directory with the projects Farm and Hill.
class ProjectFormTest : public testing::Test {
 protected:
  ProjectFormTest()
  {
    fs::create_directories(folder_ / "data" / "Hill");
    fs::create_directories(folder_ / "data" / "Farm");
    State.ProgramDir = folder_.Path();
    Form = LoadProjectForm(State, Dialogs);
  }

  /// Types keys at the end of the field ID; "<" is backspace. The box holds at most 4 characters.
  void TypeCode(const std::string& keys)
  {
    for (const char key : keys) {
      const std::string before = Form.Text3;
      std::string after = key == '<' ? before.substr(0, before.size() - 1) : before + key;
      KeyInFieldId(Form, {key == '<' ? U'\0' : static_cast<char32_t>(key), before, after.substr(0, 4)},
                   Dialogs);
    }
  }

  [[nodiscard]] bool CodeShown() const { return Form.Command1Visible && Form.LblFIDVisible; }
  [[nodiscard]] bool CodeHidden() const { return !Form.Command1Visible && !Form.LblFIDVisible; }
  [[nodiscard]] fs::path Data() const { return folder_ / "data"; }

  SurveyState State;
  FileLock Field;
  ScriptedDialogs Dialogs;
  ProjectForm Form;

 private:
  TemporaryDirectory folder_;
};

TEST_F(ProjectFormTest, WithoutDataItBeepsWarnsAndOpensEmpty)
{
  fs::remove_all(Data());
  EXPECT_THAT(LoadProjectForm(State, Dialogs).List1, IsEmpty());
  EXPECT_THAT(Dialogs.Said, ElementsAre("beep",
                                        "inform: Warning: The VELN-QTRD program can not locate the "
                                        "veln2\\data subdirectory!"));
}

TEST_F(ProjectFormTest, CodeShowsOnTheFourthCharacterBehindAProjectAlone)
{
  TypeCode("aB12");
  EXPECT_TRUE(CodeHidden());
  ChooseProject(Form, "Farm");
  EXPECT_TRUE(CodeHidden()) << "a project chosen behind the code needs the fourth character again";
  TypeCode("<2");
  EXPECT_TRUE(CodeShown());
  EXPECT_EQ(Form.LblFID, "aB12");
  for (const char* furtherKey : {"<", "x", "_"}) {
    Form.Text3 = "aB1";
    TypeCode("2");
    ASSERT_TRUE(CodeShown());
    TypeCode(furtherKey);
    EXPECT_TRUE(CodeHidden()) << furtherKey;
  }
  KeyInFieldId(Form, {U'2', "AB1", "AB2"}, Dialogs);  // typed over the selected third
  EXPECT_TRUE(CodeHidden());
}

TEST_F(ProjectFormTest, KeysAreFilteredInBothBoxes)
{
  EXPECT_FALSE(KeyInFieldId(Form, {U'_', "", "_"}, Dialogs));
  EXPECT_FALSE(KeyInFieldId(Form, {U'\u00E4', "", "\u00E4"}, Dialogs));
  EXPECT_FALSE(KeyInProjectName(Form, {U' ', "a", "a "}, Dialogs));
  EXPECT_FALSE(KeyInProjectName(Form, {U'/', "a", "a/"}, Dialogs));
  EXPECT_THAT(Dialogs.Said, ElementsAre("beep", "beep", "beep", "beep"));
  EXPECT_EQ(Form.Text1 + Form.Text3, "");
  for (const char32_t key : {U'_', U'.', U'z', U'A', U'7', U'\0'}) {
    EXPECT_TRUE(KeyInProjectName(Form, {key, "a", "taken over"}, Dialogs));
  }
  EXPECT_EQ(Form.Text1, "taken over");
  EXPECT_EQ(Dialogs.Said.size(), 4U);
}

TEST_F(ProjectFormTest, NewHidesTheButtonAndCreateBringsItBack)
{
  BeginProjectCreation(Form);
  Form.Text1 = "Dale";
  CreateProject(Form, State, Dialogs);
  EXPECT_TRUE(CodeHidden()) << "there is no code";
  TypeCode("AB12");
  BeginProjectCreation(Form);
  EXPECT_FALSE(Form.Command1Visible);
  EXPECT_EQ(Form.LblPrj, "");
  CancelProjectCreation(Form);
  EXPECT_FALSE(Form.CreationVisible);
  BeginProjectCreation(Form);
  EXPECT_TRUE(Form.CreationVisible);
  Form.Text1 = "Vale_1.a";
  CreateProject(Form, State, Dialogs);
  EXPECT_TRUE(CodeShown());
  EXPECT_EQ(Form.LblPrj, "Vale_1.a");
  EXPECT_FALSE(Form.CreationVisible);
  EXPECT_THAT(Form.List1, ElementsAre("Farm", "Hill", "Dale", "Vale_1.a"));
  EXPECT_THAT(ListFiles(Data()), ElementsAre("Dale/", "Farm/", "Hill/", "Vale_1.a/"));
  EXPECT_THAT(Dialogs.Said, IsEmpty());
}

TEST_F(ProjectFormTest, NamesThatAreNoneOrInUseAreToldAndChangeNothing)
{
  for (const char* name : {"", ".", "..", "Farm"}) {
    BeginProjectCreation(Form);
    Form.Text1 = name;
    Dialogs.Said.clear();
    CreateProject(Form, State, Dialogs);
    EXPECT_THAT(Dialogs.Said.back(),
                HasSubstr(Form.Text1 == "Farm" ? "File exists" : "Invalid Project Name!"));
    EXPECT_TRUE(Form.CreationVisible);
    EXPECT_EQ(Form.LblPrj, "");
    EXPECT_THAT(Form.List1, ElementsAre("Farm", "Hill"));
  }
}

TEST_F(ProjectFormTest, OkTakesAllOverAndANoToOverwritingEmptiesTheCodeAlone)
{
  WriteText(Data() / "Farm" / "AB12info.txt", "");
  ChooseProject(Form, "Farm");
  TypeCode("AB12");
  Form.Text2 = "\u00C4cker, north";
  const SurveyState before = State;
  Dialogs.Answer(false);
  EXPECT_FALSE(AcceptProjectForm(Form, State, Field, Dialogs));
  EXPECT_FALSE(Field);
  EXPECT_TRUE(State == before);
  EXPECT_EQ(Form.LblPrj + ": " + Form.Text2 + Form.Text3, "Farm: \u00C4cker, north");
  EXPECT_TRUE(CodeHidden());
  TypeCode("CD34");
  EXPECT_TRUE(AcceptProjectForm(Form, State, Field, Dialogs));
  EXPECT_TRUE(Field);
  EXPECT_EQ(State.ProjectName + " " + State.FieldId + " " + State.FieldDescription,
            "Farm CD34 \u00C4cker, north");
}

}  // namespace
}  // namespace veln
