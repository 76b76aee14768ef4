#include "toolkit/editor_command.h"

#include "support/testing.h"

#include <cerrno>
#include <chrono>
#include <sys/wait.h>
#include <thread>

namespace veln {

namespace fs = std::filesystem;

namespace {

/// A program that writes its arguments, one a line, to `args` beside it.
fs::path NotingProgram(const TemporaryDirectory& folder, const std::string& name)
{
  const fs::path program = folder / name;
  WriteText(program, "#!/bin/sh\ncd \"$(dirname \"$0\")\"\nprintf '%s\\n' \"$@\" > part\nmv part args\n");
  fs::permissions(program, fs::perms::owner_all);
  return program;
}

std::string NotedArguments(const TemporaryDirectory& folder)
{
  using namespace std::chrono_literals;
  for (int i = 0; i < 1000 && !fs::exists(folder / "args"); ++i) {
    std::this_thread::sleep_for(10ms);
  }
  return ReadText(folder / "args");
}

TEST(EditorCommand, TextIsSplitAtBlanksWhereQuotesHoldTogetherAndTheDocumentIsOneArgument)
{
  const std::string document = "/d/$(reboot); 'x' & \\y \"b\" \u00E4.txt";
  EXPECT_THAT(EditorCommand(" gedit", document), ElementsAre("gedit", document));
  EXPECT_THAT(EditorCommand("xdg-open ", "d"), ElementsAre("xdg-open", "d"));
  EXPECT_THAT(EditorCommand("  xterm   -e vi ", "d"), ElementsAre("xterm", "-e", "vi", "d"));
  EXPECT_THAT(EditorCommand(" \"/opt/my editor/e\" --title=\"a  b\" -x", "d"),
              ElementsAre("/opt/my editor/e", "--title=a  b", "-x", "d"));
  EXPECT_THAT(EditorCommand("e \"\" \"a b", "d"), ElementsAre("e", "", "a b", "d"));
}

TEST(EditorCommand, AnExistingFileIsTheProgramAsAWhole)
{
  const TemporaryDirectory folder;
  const std::string program = NotingProgram(folder, "my editor -x").string();
  EXPECT_THAT(EditorCommand(" " + program + " ", "d"), ElementsAre(program, "d"));
  fs::create_directory(folder / "edit -x");
  const std::string directory = (folder / "edit").string();
  EXPECT_THAT(EditorCommand(directory + " -x", "d"), ElementsAre(directory, "-x", "d"));
}

TEST(EditorCommand, NoEditorIsRefused)
{
  for (const std::string editor : {"", " ", "    "}) {
    EXPECT_THAT(RefusalOf([&] { EditorCommand(editor, "d"); }), HasSubstr("No text editor is set."));
  }
}

TEST(StartProgram, ProgramReceivesItsArgumentsWhole)
{
  const TemporaryDirectory folder;
  const std::string program = NotingProgram(folder, "my editor").string();
  StartProgram(EditorCommand(" " + program, "/d/my \"field\" $HOME *.txt"));
  EXPECT_EQ(NotedArguments(folder), "/d/my \"field\" $HOME *.txt\n");
}

TEST(StartProgram, ReturnsAtOnceAndLeavesNoChildBehind)
{
  const auto start = std::chrono::steady_clock::now();
  // The child leaves the test's output, which would be read until it ends.
  StartProgram({"sh", "-c", "exec sleep 3 >/dev/null 2>&1"});
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
}

TEST(StartProgram, WhatCannotBeStartedIsToldInTheSystemsWords)
{
  const TemporaryDirectory folder;
  WriteText(folder / "plain.txt", "no program");
  fs::permissions(folder / "plain.txt", fs::perms::owner_read);
  const std::string gone = (folder / "gone").string();
  EXPECT_EQ(RefusalOf([&] { StartProgram({gone, "d"}); }), gone + ": No such file or directory");
  EXPECT_THAT(RefusalOf([] { StartProgram({"no-such-editor-anywhere", "d"}); }),
              HasSubstr("No such file or directory"));
  EXPECT_THAT(RefusalOf([&] { StartProgram({(folder / "plain.txt").string()}); }),
              HasSubstr("Permission denied"));
  EXPECT_THAT(RefusalOf([&] { StartProgram({""}); }), HasSubstr("No such file or directory"));
}

}  // namespace
}  // namespace veln
