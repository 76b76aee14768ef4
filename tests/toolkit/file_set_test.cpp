#include "toolkit/file_set.h"

#include "support/process.h"
#include "support/testing.h"
#include "toolkit/output_target.h"

#include <csignal>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <thread>

namespace veln {

namespace fs = std::filesystem;

namespace {

class FileSets : public testing::Test {
 protected:
  [[nodiscard]] SetOwner Owner() const { return {Folder.Path(), "AB12"}; }
  void Write(const std::string& name, const std::string& content) const { WriteText(Folder / name, content); }
  [[nodiscard]] std::vector<std::string> Names() const { return ListFiles(Folder.Path()); }
  [[nodiscard]] std::string Text(const std::string& name) const { return ReadText(Folder / name); }

  const TemporaryDirectory Folder;
};

TEST_F(FileSets, WhoseJournalIsCompleteAreFinished)
{
  Write("rsd.txt", "new");
  Write("gps.txt", "older");
  Write(".AB12-2.new", "new");
  Write(".AB12-3.new", "new");
  Write(".AB12-1.old", "older");
  Write(".AB12-2.old", "older");
  Write(".AB12.set", "rsd.txt\ngps.txt\nxrs.asc\n.\n");
  TidyFileSets(Owner());
  EXPECT_THAT(Names(), ElementsAre("gps.txt", "rsd.txt", "xrs.asc"));
  EXPECT_EQ(Text("gps.txt") + Text("xrs.asc"), "newnew");
}

TEST_F(FileSets, WhoseJournalIsNotCompleteAreTakenBack)
{
  for (const std::string journal : {"", "rsd.txt\n", "rsd.txt\ngps.txt\n"}) {
    Write("rsd.txt", "older");
    Write(".AB12-1.new", "new");
    Write(".AB12-1.old", "older");
    Write(".AB12-2.new", "ne");
    Write(".AB12.set", journal);
    TidyFileSets(Owner());
    EXPECT_THAT(Names(), ElementsAre("rsd.txt"));
    EXPECT_EQ(Text("rsd.txt"), "older");
  }
}

TEST_F(FileSets, OfOthersStayUntouched)
{
  const std::vector<std::string> others = {".AB1-1.new",  ".AB12-.new", ".AB12-1.new.txt", ".AB12-1x.old",
                                           ".CD34-1.new", ".CD34.set",  ".veln-0.new",     "AB12-1.new"};
  for (const std::string& name : others) {
    Write(name, "");
  }
  TidyFileSets(Owner());
  EXPECT_EQ(Names().size(), others.size());
}

TEST_F(FileSets, ThatCanNotBeFinishedAreToldAndKept)
{
  fs::create_directory(Folder / "rsd.txt");
  Write(".AB12-1.new", "new");
  Write(".AB12.set", "rsd.txt\n.\n");
  EXPECT_EQ(RefusalOf([this] { TidyFileSets(Owner()); }),
            (Folder / "rsd.txt").string() + "\ncould not be written: Is a directory");
  EXPECT_THAT(Names(), ElementsAre(".AB12-1.new", ".AB12.set", "rsd.txt/"));
}

TEST_F(FileSets, KeepPermissionsAndFollowLinks)
{
  Write("elsewhere/results.txt", "older");
  fs::permissions(Folder / "elsewhere/results.txt", fs::perms{0640});
  fs::create_directory_symlink(Folder / "elsewhere", Folder / "linked");
  fs::create_symlink("linked/results.txt", Folder / "gps.txt");
  fs::create_symlink("elsewhere/fresh.txt", Folder / "xrs.asc");
  WriteFileSet({{Folder / "gps.txt", "new"}, {Folder / "xrs.asc", "new"}, {Folder / "rsd.txt", "new"}},
               Owner());
  EXPECT_THAT(Names(), ElementsAre("elsewhere/", "elsewhere/fresh.txt", "elsewhere/results.txt", "gps.txt",
                                   "linked/", "rsd.txt", "xrs.asc"));
  EXPECT_TRUE(fs::is_symlink(Folder / "gps.txt"));
  EXPECT_EQ(Text("elsewhere/results.txt") + Text("elsewhere/fresh.txt"), "newnew");
  EXPECT_EQ(fs::status(Folder / "elsewhere/results.txt").permissions(), fs::perms{0640});
}

TEST_F(FileSets, RefuseAFileThatItsOwnerMayNotWrite)
{
  Write("rsd.txt", "older");
  fs::permissions(Folder / "rsd.txt", fs::perms{0444});
  EXPECT_EQ(RefusalOf([this] { WriteFiles({{Folder / "gps.txt", "new"}, {Folder / "rsd.txt", "new"}}); }),
            (Folder / "rsd.txt").string() + "\ncould not be written: Permission denied");
  EXPECT_THAT(Names(), ElementsAre("rsd.txt"));
}

TEST_F(FileSets, TakeNamesUpToTheLongest)
{
  const std::string longest(255, 'x');
  WriteFiles({{Folder / longest, "new"}});
  WriteFiles({{Folder / longest, "newer"}});
  EXPECT_EQ(Text(longest), "newer");
  EXPECT_EQ(RefusalOf([&] { WriteFiles({{Folder / (longest + "x"), ""}}); }),
            (Folder / (longest + "x")).string() + "\ncould not be written: File name too long");
}

TEST_F(FileSets, RemoveWhatADeadWriterOfTheSameNameLeft)
{
  Write("map.svg", "older");
  ASSERT_EQ(mkfifo((Folder / "pipe").c_str(), 0600), 0);
  const pid_t writer = fork();
  if (writer == 0) {  // waits for the FIFO's reader with its other file prepared
    WriteFiles({{Folder / "map.svg", "new"}, {Folder / "pipe", "new"}});
    _exit(0);
  }
  while (Names().size() < 4) {
    std::this_thread::yield();
  }
  kill(writer, SIGKILL);
  EXPECT_EQ(process_detail::WaitFor(writer), 128 + SIGKILL);
  EXPECT_EQ(Text("map.svg"), "older");
  WriteFiles({{Folder / "map.svg", "newer"}});
  EXPECT_THAT(Names(), ElementsAre("map.svg", "pipe"));
}

TEST_F(FileSets, WriteToAFifoAndLeaveItOne)
{
  const fs::path fifo = Folder / "pipe";
  ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
  fs::create_symlink("pipe", Folder / "map.svg");
  const std::string content(200000, 'x');  // more than a FIFO holds
  std::string read;
  std::thread reader([&] { read = ReadFile(fifo); });
  WriteFiles({{Folder / "map.svg", content}, {Folder / "b.svg", "new"}});
  reader.join();
  EXPECT_EQ(read, content);
  EXPECT_TRUE(fs::is_fifo(fifo));
  EXPECT_THAT(Names(), ElementsAre("b.svg", "map.svg", "pipe"));
}

TEST_F(FileSets, ReplaceNothingIfADeviceTakesNoMore)
{
  const fs::path full = Folder / "full";
  if (mknod(full.c_str(), S_IFCHR | 0600, makedev(1, 7)) != 0) {
    GTEST_SKIP() << "devices can be made by root alone";
  }
  Write("b.svg", "older");
  EXPECT_EQ(RefusalOf([&] { WriteFiles({{full, "new"}, {Folder / "b.svg", "new"}}); }),
            full.string() + "\ncould not be written: No space left on device");
  EXPECT_THAT(Names(), ElementsAre("b.svg", "full"));
  EXPECT_EQ(Text("b.svg"), "older");
  EXPECT_TRUE(fs::is_character_file(full));
}

TEST(OutputTargets, AreOneFileWhateverLeadsThere)
{
  const TemporaryDirectory folder;
  WriteText(folder / "a" / "survey.txt", "");
  fs::create_hard_link(folder / "a/survey.txt", folder / "hard.txt");
  fs::create_symlink("a/survey.txt", folder / "link.txt");
  fs::create_directory_symlink(folder / "a", folder / "b");
  fs::create_symlink("a/none.svg", folder / "dangling.svg");
  const auto same = [&](const char* one, const char* other) {
    return IdentityOf(folder / one) == IdentityOf(folder / other);
  };
  EXPECT_TRUE(same("a/survey.txt", "hard.txt"));
  EXPECT_TRUE(same("a/survey.txt", "link.txt"));
  EXPECT_TRUE(same("a/survey.txt", "b/../a/./survey.txt"));
  EXPECT_TRUE(same("b/none.svg", "dangling.svg"));
  EXPECT_FALSE(same("a/survey.txt", "b/none.svg"));
  EXPECT_FALSE(same("none.svg", "dangling.svg"));
}

TEST(AbsolutePaths, GoBackWhereTheSystemGoes)
{
  const TemporaryDirectory folder;
  fs::create_directories(folder / "far/away");
  fs::create_directory_symlink("far/away", folder / "link");
  const fs::path here = fs::canonical(folder.Path());
  EXPECT_EQ(AbsolutePath(here / "link/../x"), here / "far/x");
  EXPECT_EQ(AbsolutePath(here / "link/./x//"), here / "link/x")
      << "as typed, where no link is passed backwards";
  EXPECT_EQ(AbsolutePath(here / "none/../x/y/.."), here / "x");
  EXPECT_EQ(AbsolutePath("/../.."), "/");
}

}  // namespace
}  // namespace veln
