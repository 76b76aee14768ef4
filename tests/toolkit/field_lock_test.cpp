#include "toolkit/field_lock.h"

#include "support/process.h"
#include "support/testing.h"

#include <csignal>
#include <thread>

namespace veln {
namespace {

using std::chrono::milliseconds;

class FieldLocks : public testing::Test {
 protected:
  [[nodiscard]] FieldPlace Place(const std::string& field = "AB12") const
  {
    return {Folder.Path(), "farm", field};
  }
  [[nodiscard]] FileLock Take(const std::string& field = "AB12") const
  {
    return TakeField(Place(field), "veln", milliseconds(0));
  }

  /// Runs `work` in another process; how that ended.
  static int InAnotherProcess(const std::function<void()>& work)
  {
    const pid_t child = fork();
    if (child == 0) {
      work();
      _exit(0);  // the tests go on in the other one
    }
    return process_detail::WaitFor(child);
  }

  const TemporaryDirectory Folder;
};

TEST_F(FieldLocks, ShutOthersOutAndNameTheHolder)
{
  const FileLock lock = Take();
  EXPECT_TRUE(lock.Holds(FieldLockFile(Place())));
  EXPECT_THAT(
      RefusalOf([this] { TakeField(Place(), "veln-qtrd", milliseconds(20)); }),
      testing::MatchesRegex("Field AB12 of project farm is in use by veln, process " +
                            std::to_string(getpid()) + ", since ..:..:... Try again when it has ended\\."));
  EXPECT_TRUE(Take("CD34")) << "another field of the project";
}

TEST_F(FieldLocks, GoWithTheirFile)
{
  {
    const FileLock lock = Take();
  }
  FileLock lock = Take();
  lock = FileLock();
  EXPECT_THAT(ListFiles(Folder.Path()), IsEmpty());
  EXPECT_TRUE(Take());
}

TEST_F(FieldLocks, OfTheDeadAreTakenOverAndTheirSetsTidiedUp)
{
  InAnotherProcess([this] {
    const FileLock lock = Take();
    std::raise(SIGKILL);
  });
  WriteText(Folder / ".AB12-1.new", "half");
  EXPECT_THAT(ListFiles(Folder.Path()), ElementsAre(".AB12-1.new", ".AB12.lock"));
  const FileLock lock = Take();
  EXPECT_TRUE(lock);
  EXPECT_THAT(ListFiles(Folder.Path()), ElementsAre(".AB12.lock"));
}

TEST_F(FieldLocks, AreWaitedFor)
{
  const pid_t other = fork();
  if (other == 0) {
    const FileLock lock = Take();
    std::this_thread::sleep_for(milliseconds(100));
    _exit(lock ? 0 : 1);  // without removing its file
  }
  while (ListFiles(Folder.Path()).empty()) {
    std::this_thread::yield();
  }
  EXPECT_TRUE(TakeField(Place(), "veln", std::chrono::seconds(60)));
  EXPECT_EQ(process_detail::WaitFor(other), 0);
}

TEST_F(FieldLocks, AreNotNeededWhereNobodyCanWrite)
{
  EXPECT_FALSE(TakeField({Folder / "none", "farm", "AB12"}, "veln", milliseconds(0)));
}

TEST_F(FieldLocks, GoWithAProgramThatASignalEnds)
{
  for (const bool held : {false, true}) {
    const int status = InAnotherProcess([&] {
      EndInOrderOnSignals();
      const FileLock lock = Take();
      {
        const EndHold hold;
        if (held) {
          std::raise(SIGTERM);
          WriteText(Folder / "set", "finished");
        }
      }
      std::raise(SIGTERM);
      WriteText(Folder / "next", "not begun");
    });
    EXPECT_EQ(status, 128 + SIGTERM);
    const std::vector<std::string> finished = {"set"};
    EXPECT_EQ(ListFiles(Folder.Path()), held ? finished : std::vector<std::string>());
  }
}

TEST(SignalsAtTheEnd, StayIgnoredIfTheyWere)
{
  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGHUP, SIG_IGN);
    EndInOrderOnSignals();
    std::raise(SIGHUP);
    std::raise(SIGPIPE);
    std::raise(SIGXFSZ);
    _exit(5);
  }
  EXPECT_EQ(process_detail::WaitFor(child), 5);
}

}  // namespace
}  // namespace veln
