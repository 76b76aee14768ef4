#include "toolkit/file_store.h"

#include "toolkit/refusal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace veln {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Refuse(const fs::path& path, const char* what, int error)
{
  throw Refusal(path.string() + what + std::generic_category().message(error));
}

[[noreturn]] void RefuseWriting(const fs::path& path, int error)
{
  Refuse(path, "\ncould not be written: ", error);
}

/// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor()
  {
    if (number_ >= 0) {
      close(number_);
    }
  }

  [[nodiscard]] int Number() const { return number_; }

 private:
  int number_;
};

/// A name beside `target` that no file has yet.
fs::path NameBeside(const fs::path& target, const char* purpose)
{
  const std::string stem = "." + target.filename().string() + "." + std::to_string(getpid()) + purpose;
  fs::path name = target.parent_path() / stem;
  for (int i = 1; fs::symlink_status(name).type() != fs::file_type::not_found; ++i) {
    name = target.parent_path() / (stem + std::to_string(i));
  }
  return name;
}

void WriteAndFlush(const fs::path& path, const std::string& content, const fs::path& target)
{
  constexpr mode_t Readable = 0666;  // what the user's umask leaves of it
  const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, Readable));
  if (file.Number() < 0) {
    RefuseWriting(target, errno);
  }
  std::size_t done = 0;
  while (done < content.size()) {
    const ssize_t written = write(file.Number(), content.data() + done, content.size() - done);
    if (written < 0 && errno != EINTR) {
      RefuseWriting(target, errno);
    }
    done += written < 0 ? 0 : static_cast<std::size_t>(written);
  }
  if (fsync(file.Number()) != 0) {
    RefuseWriting(target, errno);
  }
}

/// Files on their way into place. Whatever was not brought to its end is taken back on destruction.
class Replacement {
 public:
  explicit Replacement(const ComposedFile& file) : target_(file.Path), fresh_(NameBeside(file.Path, ".new"))
  {
    try {
      WriteAndFlush(fresh_, file.Content, target_);
    } catch (const Refusal&) {
      Remove(fresh_);
      throw;
    }
  }

  Replacement(Replacement&& other) noexcept
      : target_(std::move(other.target_)),
        fresh_(std::move(other.fresh_)),
        older_(std::move(other.older_)),
        inPlace_(other.inPlace_)
  {
    other.fresh_.clear();
    other.older_.reset();
    other.inPlace_ = false;
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  Replacement& operator=(Replacement&&) = delete;

  ~Replacement()
  {
    if (inPlace_ && older_) {
      rename(older_->c_str(), target_.c_str());
    } else if (inPlace_) {
      Remove(target_);
    } else if (older_) {
      Remove(*older_);
    }
    Remove(fresh_);
  }

  /// Renames the fresh file over its target; the older file, if there is one, is kept under a second name.
  void PutInPlace()
  {
    const fs::file_type older = fs::symlink_status(target_).type();
    if (older == fs::file_type::regular || older == fs::file_type::symlink) {
      KeepOlder();
    }
    if (rename(fresh_.c_str(), target_.c_str()) != 0) {
      RefuseWriting(target_, errno);
    }
    inPlace_ = true;
    fresh_.clear();
  }

  /// Nothing is taken back from here on.
  void Finish()
  {
    inPlace_ = false;  // the destructor then removes the older file alone
  }

 private:
  static void Remove(const fs::path& path)
  {
    if (!path.empty()) {
      unlink(path.c_str());
    }
  }

  void KeepOlder()
  {
    const fs::path name = NameBeside(target_, ".old");
    std::error_code failure;
    fs::create_hard_link(target_, name, failure);
    if (failure) {  // a file system without hard links
      fs::copy(target_, name, fs::copy_options::copy_symlinks, failure);
    }
    if (failure) {
      Remove(name);
      RefuseWriting(target_, failure.value());
    }
    older_ = name;
  }

  fs::path target_;
  fs::path fresh_;
  std::optional<fs::path> older_;
  bool inPlace_ = false;
};

}  // namespace

std::string ReadFile(const fs::path& path, std::size_t mostBytes)
{
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.Number() < 0) {
    Refuse(path, "\ncould not be read: ", errno);
  }
  std::string content;
  std::array<char, 1U << 16U> block{};
  for (;;) {
    const std::size_t wanted = std::min(block.size(), mostBytes - content.size());
    const ssize_t count = read(file.Number(), block.data(), wanted);
    if (count == 0) {
      return content;
    }
    if (count < 0 && errno != EINTR) {
      Refuse(path, "\ncould not be read: ", errno);
    }
    content.append(block.data(), count < 0 ? 0 : static_cast<std::size_t>(count));
  }
}

void WriteFiles(const std::vector<ComposedFile>& files)
{
  std::vector<Replacement> replacements;
  replacements.reserve(files.size());
  for (const ComposedFile& file : files) {
    replacements.emplace_back(file);
  }
  for (Replacement& replacement : replacements) {
    replacement.PutInPlace();
  }
  for (Replacement& replacement : replacements) {
    replacement.Finish();
  }
}

void MakeDirectory(const fs::path& path)
{
  constexpr mode_t Accessible = 0777;  // what the user's umask leaves of it
  if (mkdir(path.c_str(), Accessible) != 0) {
    throw Refusal(path.string() + "\ncould not be made: " + std::generic_category().message(errno));
  }
}

}  // namespace veln
