#include "workspace/project.h"

#include "support/testing.h"

namespace veln {

namespace fs = std::filesystem;

TEST(Project, NamesHaveDigitsAsciiLettersUnderscoreAndPoint)
{
  for (const char* name : {"a", "Z9", "0", "_", "north_farm.2026", "...", ".hidden", "a."}) {
    EXPECT_TRUE(IsProjectName(name)) << name;
  }
  for (const char* name : {"", ".", "..", "a b", "a/b", "a\\b", "a-b", "\u00FCbung", "a\n", "a:"}) {
    EXPECT_FALSE(IsProjectName(name)) << name;
  }
}

TEST(Project, FieldIdsAreFourDigitsOrAsciiLetters)
{
  for (const char* code : {"AB12", "zzzz", "0000", "aZ09"}) {
    EXPECT_TRUE(IsFieldId(code)) << code;
  }
  for (const char* code :
       {"", "AB1", "AB123", "AB_1", "AB.1", "AB 1", "\u00C4B1", "AB\u00C4", "@[`{", "/:12"}) {
    EXPECT_FALSE(IsFieldId(code)) << code;
  }
}

TEST(Project, EveryDirectoryUnderDataIsAProject)
{
  const TemporaryDirectory folder;
  for (const char* name : {"b", "a name as it stands", "C"}) {
    fs::create_directories(folder / "data" / name / "deeper");
  }
  WriteText(folder / "data" / "a file.txt", "");
  fs::create_directory_symlink(folder / "data" / "b", folder / "data" / "linked");
  EXPECT_THAT(ListProjects(folder.Path()), ElementsAre("C", "a name as it stands", "b", "linked"));
  EXPECT_EQ(RefusalOf([&] { ListProjects(folder / "data/a file.txt"); }),
            "Warning: The VELN-QTRD program can not locate the veln2\\data subdirectory!");
}

TEST(Project, AFieldIdWithAnInformationFileIsAskedFor)
{
  const TemporaryDirectory folder;
  WriteText(folder / "data/Farm/AB12info.txt", "");
  WriteText(folder / "data/Hill/AB12tstd.std", "");
  const std::string question =
      "ask: Warning!  The 4-character Field ID code you have specified is already in use\n"
      "in the current data Project.  If you keep this code, you will automatically\n"
      "overwrite one or more existing VELN-QTRD output data and/or text files.\n\n"
      "Are you sure that you want to still use this code and overwrite these files?";
  ScriptedDialogs dialogs({true, false});
  EXPECT_TRUE(CheckAlphaCode(folder.Path(), "Hill", "AB12", dialogs)) << "no other file counts";
  EXPECT_THAT(dialogs.Said, IsEmpty());
  EXPECT_TRUE(CheckAlphaCode(folder.Path(), "Farm", "AB12", dialogs));
  EXPECT_FALSE(CheckAlphaCode(folder.Path(), "Farm", "AB12", dialogs));
  EXPECT_THAT(dialogs.Said, ElementsAre("beep", question, "beep", question, "beep",
                                        "inform: Please enter a new Field ID code now."));
  EXPECT_THAT(dialogs.Named, Each(Question::UseFieldAgain));
}

TEST(Project, AFieldThatCanNotBeLookedAtIsNotTakenForFree)
{
  const TemporaryDirectory folder;
  fs::create_directories(folder / "data/Farm");
  fs::create_symlink("AB12info.txt", folder / "data/Farm/AB12info.txt");  // a link to itself
  EXPECT_THAT(RefusalOf([&] { IsFieldInUse(folder.Path(), "Farm", "AB12"); }),
              HasSubstr("AB12info.txt\ncould not be looked for: Too many levels of symbolic links"));
}

TEST(Project, IsSetAsOftenAsWantedUntilASurveyIsImported)
{
  SurveyState state;
  AcceptProject(state, "Farm", "AB12", "North field");
  AcceptProject(state, "Hill", "CD34", "South field");
  EXPECT_EQ(state.ProjectName + state.FieldId + state.FieldDescription, "HillCD34South field");
  EXPECT_TRUE(state.Menu.IsEnabled(MenuEntry::mnuImport));
  state.Menu.Apply(WorkflowEvent::SurveyImported);
  EXPECT_NE(WholeRefusalOf(state, [&] { AcceptProject(state, "Farm", "AB12", ""); }), "not refused");
}

}  // namespace veln
