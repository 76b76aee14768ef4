#include "toolkit/file_store.h"

#include "support/testing.h"

#include <csignal>
#include <sys/resource.h>

namespace veln {

namespace fs = std::filesystem;

namespace {

std::vector<ComposedFile> ThreeFiles(const TemporaryDirectory& folder)
{
  return {{folder / "a.txt", "new a\r\n"}, {folder / "b.txt", "new b\r\n"}, {folder / "c.txt", "new c\r\n"}};
}

/// A full disk for as long as it lives: no file may grow beyond `bytes`.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN))
  {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit()
  {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

TEST(FileStore, FilesAppearTogetherAndReplaceOlderOnes)
{
  const TemporaryDirectory folder;
  WriteText(folder / "b.txt", "an older and longer text");
  WriteFiles(ThreeFiles(folder));
  EXPECT_EQ(ListFiles(folder.Path()), (std::vector<std::string>{"a.txt", "b.txt", "c.txt"}));
  EXPECT_EQ(ReadText(folder / "b.txt"), "new b\r\n");
  EXPECT_EQ(ReadText(folder / "c.txt"), "new c\r\n");
}

TEST(FileStore, ADirectoryInAFilesPlaceKeepsAllOlderFilesWhole)
{
  for (const std::string blocked : {"a.txt", "b.txt", "c.txt"}) {
    for (const bool olderFiles : {true, false}) {
      const TemporaryDirectory folder;
      fs::create_directory(folder / blocked);
      for (const std::string name : {"a.txt", "b.txt", "c.txt"}) {
        if (olderFiles && name != blocked) {
          WriteText(folder / name, "older");
        }
      }
      const auto before = ListFiles(folder.Path());
      EXPECT_EQ(RefusalOf([&] { WriteFiles(ThreeFiles(folder)); }),
                (folder / blocked).string() + "\ncould not be written: Is a directory");
      EXPECT_EQ(ListFiles(folder.Path()), before) << blocked;
      for (const std::string& name : before) {
        EXPECT_TRUE(name.ends_with('/') || ReadText(folder / name) == "older") << name;
      }
    }
  }
}

TEST(FileStore, AWriteThatFailsHalfwayLeavesNothingOfTheSet)
{
  const TemporaryDirectory folder;
  WriteText(folder / "a.txt", "older a");
  WriteText(folder / "c.txt", "older c");
  auto files = ThreeFiles(folder);
  files[1].Content = std::string(20000, 'x');
  std::string message;
  {
    const FileSizeLimit limit(4096);
    message = RefusalOf([&] { WriteFiles(files); });
  }
  EXPECT_THAT(message, HasSubstr((folder / "b.txt").string()));
  EXPECT_THAT(message, HasSubstr("File too large"));
  EXPECT_EQ(ListFiles(folder.Path()), (std::vector<std::string>{"a.txt", "c.txt"}));
  EXPECT_EQ(ReadText(folder / "a.txt"), "older a");
  EXPECT_EQ(ReadText(folder / "c.txt"), "older c");
  WriteFiles(files);
  EXPECT_EQ(ReadText(folder / "b.txt"), files[1].Content);
}

TEST(FileStore, ALinkInAFilesPlaceOutlivesAFailure)
{
  const TemporaryDirectory folder;
  WriteText(folder / "elsewhere" / "results.txt", "older");
  fs::create_symlink(folder / "elsewhere" / "results.txt", folder / "a.txt");
  fs::create_directory(folder / "c.txt");
  const auto before = ListFiles(folder.Path());
  RefusalOf([&] { WriteFiles(ThreeFiles(folder)); });
  EXPECT_EQ(ListFiles(folder.Path()), before);
  EXPECT_TRUE(fs::is_symlink(folder / "a.txt"));
  EXPECT_EQ(ReadText(folder / "a.txt"), "older");
}

TEST(FileStore, AFolderThatIsNotThereIsTold)
{
  const TemporaryDirectory folder;
  const std::string gone = (folder / "gone" / "a.txt").string();
  EXPECT_EQ(RefusalOf([&] { WriteFiles({{gone, "x"}}); }),
            gone + "\ncould not be written: No such file or directory");
  EXPECT_EQ(RefusalOf([&] { ReadFile(gone); }), gone + "\ncould not be read: No such file or directory");
  EXPECT_THAT(RefusalOf([&] { ReadFile(folder.Path()); }), HasSubstr("Is a directory"));
}

TEST(FileStore, WhatIsReadIsWhatWasWritten)
{
  const TemporaryDirectory folder;
  std::string content;
  for (int i = 0; i < 70000; ++i) {  // more than one block of the reader
    content += static_cast<char>(i % 256);
  }
  for (const std::string& text : {std::string(), std::string("\0\r\n\xFF", 4), content}) {
    WriteFiles({{folder / "any", text}});
    EXPECT_EQ(ReadText(folder / "any"), text);
    EXPECT_EQ(ReadFile(folder / "any"), text);
  }
}

TEST(FileStore, ADirectoryIsMadeOnce)
{
  const TemporaryDirectory folder;
  MakeDirectory(folder / "data");
  EXPECT_TRUE(fs::is_directory(folder / "data"));
  EXPECT_THAT(RefusalOf([&] { MakeDirectory(folder / "data"); }), HasSubstr("File exists"));
  EXPECT_THAT(RefusalOf([&] { MakeDirectory(folder / "a" / "b"); }), HasSubstr("No such file or directory"));
}

}  // namespace
}  // namespace veln
