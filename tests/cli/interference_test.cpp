// What else goes on around a run: other names of its files, other processes, signals, ends of its output.

#include "cli/veln_session.h"

#include <csignal>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace veln {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> Picture(const std::string& file)
{
  return {"run", "survey.txt", "--plot", "map-s1=" + file};
}

TEST(Pictures, NeverReplaceTheSurveyOrAnotherOutput)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(60));
  WriteText(session.Root() / "survey.svg", GridText(60));
  WriteText(session.Root() / "notes.txt", "notes");
  fs::create_directories(session.Root() / "data/demo");
  fs::create_directory_symlink("data", session.Root() / "linked");
  fs::create_symlink("survey.txt", session.Root() / "link.svg");
  fs::create_hard_link(session.Root() / "survey.txt", session.Root() / "hard.svg");
  fs::create_symlink("data/demo/FLD1data.svy", session.Root() / "export.svg");
  const std::vector<std::vector<std::string>> commands = {
      Picture("survey.txt"),
      Picture("./data/../survey.txt"),
      Picture("notes.txt"),
      Picture("map"),
      Picture("link.svg"),
      Picture("hard.svg"),
      Picture("export.svg"),
      {"run", "survey.svg", "--plot", "map-s1=survey.svg"},
      {"run", "survey.txt", "--plot", "map-s1=data/a.svg", "--plot", "grid=linked/a.svg"},
      {"run", "survey.txt", "--plot", "map-s1=a.svg", "--plot", "grid=a.svg"}};
  const auto before = ListFiles(session.Root());
  for (const auto& command : commands) {
    const ProcessResult result = session.Veln(command);
    EXPECT_EQ(result.Status, 2) << testing::PrintToString(command);
    EXPECT_THAT(result.Err, Not(IsEmpty()));
    EXPECT_EQ(ListFiles(session.Root()), before);
  }
  EXPECT_EQ(ReadText(session.Root() / "survey.txt"), GridText(60));
  EXPECT_EQ(session.Veln(Picture("map.SVG")).Status, 0);
}

TEST(FieldFiles, ThatLeadToTheSurveyAreRefused)
{
  VelnSession session;
  fs::create_directories(session.Root() / "data/demo");
  fs::create_symlink("../../survey.txt", session.Output("data.svy"));
  EXPECT_EQ(session.Run(GridText(60)).Status, 2);
  EXPECT_EQ(ReadText(session.Root() / "survey.txt"), GridText(60));
}

TEST(Pictures, GoToAFifoThroughALink)
{
  VelnSession session;
  ASSERT_EQ(mkfifo((session.Root() / "pipe").c_str(), 0600), 0);
  fs::create_symlink("pipe", session.Root() / "link");
  std::string read;
  std::thread reader([&] { read = ReadText(session.Root() / "pipe"); });
  EXPECT_EQ(session.Run(GridText(60), {"--plot", "map-s1=link"}).Status, 0);
  reader.join();
  EXPECT_THAT(read, EndsWith("</svg>\n"));
  EXPECT_TRUE(fs::is_fifo(session.Root() / "pipe"));
}

TEST(Survey, IsReadOnceFromAFifoAndNoFurtherThanASurveyCanGo)
{
  VelnSession session;
  ASSERT_EQ(mkfifo((session.Root() / "pipe").c_str(), 0600), 0);
  std::thread writer([&] { WriteText(session.Root() / "pipe", GridText(60)); });
  EXPECT_EQ(session.Veln({"run", "pipe"}).Status, 0);
  writer.join();

  const fs::path zeros = session.Root() / "zeros";
  WriteText(zeros, "");
  fs::resize_file(zeros, 3'000'000'000);  // a hole, without room on the disk
  const ProcessResult endless = session.Veln({"run", "zeros", "--overwrite"});
  EXPECT_EQ(endless.Status, 1);
  EXPECT_EQ(endless.Err, "zeros\nis no survey: more than 64 MB before record 30,001.\n");

  fs::resize_file(zeros, 0);
  WriteText(zeros, Lines(30'001, GridLine));
  fs::resize_file(zeros, 3'000'000'000);
  EXPECT_THAT(session.Veln({"run", "zeros", "--overwrite"}).Err,
              StartsWith("Error!  Your file contains more than 30,000 records."));
}

TEST(AField, HasOneRunAtATime)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(60));
  const auto run = [&](const std::string& field, const std::string& size) {
    return StartProcess(VELN_PROGRAM,
                        {"run", "survey.txt", "--quiet", "--field", field, "--description", size,
                         "--overwrite", "--design", size},
                        session.Root(), [] {});
  };
  std::vector<pid_t> runs;
  for (int i = 0; i < 8; ++i) {
    runs.push_back(run(i % 4 == 3 ? "FLD2" : "FLD1", i % 2 == 0 ? "6" : "12"));
  }
  for (const pid_t process : runs) {
    EXPECT_EQ(process_detail::WaitFor(process), 0);
  }
  const std::string size = SplitLines(ReadText(session.Output("rsd1.txt"))).at(5).substr(14);
  for (const char* suffix : {"gps1.txt", "xrs1.asc"}) {
    EXPECT_EQ(std::to_string(SplitLines(ReadText(session.Output(suffix))).size()), size) << suffix;
  }
  EXPECT_THAT(SplitLines(ReadText(session.Output("info.txt"))), Contains("Field Desc:   " + size));
  EXPECT_EQ(session.Outputs().size(), 5U + 5U);  // of both fields, and nothing beside
}

TEST(AField, ThatIsInUseIsToldWithItsHolder)
{
  VelnSession session;
  fs::create_directories(session.Root() / "data/demo");
  WriteText(session.Output(""), "");
  const fs::path lock = session.Root() / "data/demo/.FLD1.lock";
  WriteText(lock, "veln-qtrd\n1234\n2026-11-22 10:22:31\n");
  const int held = open(lock.c_str(), O_RDWR);
  ASSERT_EQ(flock(held, LOCK_EX), 0);
  const ProcessResult result = session.Run(GridText(60));
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(
      result.Err,
      "Field FLD1 of project demo is in use by veln-qtrd, process 1234, since 10:22:31. Try again when it "
      "has ended.\n");
  close(held);
  EXPECT_EQ(session.Run(GridText(60)).Status, 0) << "a file without a living lock tells nothing";
}

TEST(Signals, EndARunWithNothingLeft)
{
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    VelnSession session;
    WriteText(session.Root() / "survey.txt", GridText(60));
    ASSERT_EQ(mkfifo((session.Root() / "pipe").c_str(), 0600), 0);
    const pid_t run = StartProcess(
        VELN_PROGRAM, {"run", "survey.txt", "--quiet", "--plot", "grid=a.svg", "--plot", "map-s1=pipe"},
        session.Root(), [] {});
    while (!exists(session.Output("data.svy"))) {  // from here on it soon waits for the FIFO's reader
      std::this_thread::yield();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    kill(run, signal);
    EXPECT_EQ(process_detail::WaitFor(run), 128 + signal);
    EXPECT_THAT(session.Outputs(), ElementsAre("data.svy", "gps1.txt", "info.txt", "rsd1.txt", "xrs1.asc"));
    EXPECT_THAT(ListFiles(session.Root()), Not(Contains("a.svg")));
    EXPECT_THAT(ListFiles(session.Root()), Not(Contains(StartsWith("."))));
  }
}

TEST(Output, ThatNobodyReadsDoesNotStopTheRun)
{
  for (const bool closed : {false, true}) {
    VelnSession session;
    WriteText(session.Root() / "survey.txt", GridText(60));
    const fs::path errors = session.Root() / "errors";
    const pid_t run = StartProcess(VELN_PROGRAM, {"run", "survey.txt"}, session.Root(), [&] {
      std::array<int, 2> ends{};
      if (pipe(ends.data()) == 0 && dup2(ends[1], STDOUT_FILENO) >= 0) {
        close(ends[0]);
        close(ends[1]);
      }
      process_detail::SendTo(errors, STDERR_FILENO);
      if (closed) {
        close(STDOUT_FILENO);
      }
    });
    EXPECT_EQ(process_detail::WaitFor(run), 1);
    EXPECT_EQ(ReadText(errors), "Standard output could not be written.\n");
    EXPECT_EQ(session.Outputs().size(), 5U);
    EXPECT_THAT(ReadText(session.Output("data.svy")), StartsWith("60,3,\"G\",\"none\"\r\n\"EMv\""));
  }
}

TEST(FileSizeLimit, IsToldAndLeavesNothing)
{
  VelnSession session;
  WriteText(session.Root() / "survey.txt", GridText(400));
  const fs::path errors = session.Root() / "errors";
  const pid_t run = StartProcess(VELN_PROGRAM, {"run", "survey.txt", "--quiet"}, session.Root(), [&] {
    process_detail::SendTo(errors, STDERR_FILENO);
    const rlimit limit{8192, 8192};
    setrlimit(RLIMIT_FSIZE, &limit);
  });
  EXPECT_EQ(process_detail::WaitFor(run), 1);
  EXPECT_EQ(ReadText(errors),
            session.Output("data.svy").string() + "\ncould not be written: File too large\n");
  EXPECT_THAT(session.Outputs(), ElementsAre("gps1.txt", "info.txt", "rsd1.txt", "xrs1.asc"));
}

TEST(TheRoot, GoesBackBehindALinkWhereTheSystemGoes)
{
  VelnSession session;
  fs::create_directories(session.Root() / "far/away");
  fs::create_directory_symlink("far/away", session.Root() / "link");
  EXPECT_EQ(session.Run(GridText(60), {"--root", "link/.."}).Status, 0);
  EXPECT_TRUE(exists(session.Root() / "far/data/demo/FLD1info.txt"));
}

TEST(AField, ThatCanNotBeLookedAtIsNotTakenForFree)
{
  VelnSession session;
  fs::create_directories(session.Root() / "data/demo");
  fs::create_symlink("FLD1info.txt", session.Output("info.txt"));  // a link to itself
  const ProcessResult result = session.Run(GridText(60), {"--no-export"});
  EXPECT_NE(result.Status, 0);
  EXPECT_THAT(result.Err, HasSubstr("Too many levels of symbolic links"));
}

}  // namespace
}  // namespace veln
