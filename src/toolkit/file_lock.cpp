#include "toolkit/file_lock.h"

#include "toolkit/output_target.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <utility>

namespace veln {

namespace fs = std::filesystem;

namespace {

constexpr const char* Locking = "locked";

/// Whether an open file still bears its name; a holder who ends removes it.
bool StandsThere(const Descriptor& file, const fs::path& name)
{
  struct stat opened = {};
  struct stat named = {};
  return fstat(file.Number(), &opened) == 0 && stat(name.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// The lock's file, made if it is missing. Another user's may open for reading alone.
Descriptor OpenLock(const fs::path& file)
{
  constexpr mode_t Readable = 0666;
  Descriptor opened(open(file.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, Readable));
  if (!opened && errno == EACCES) {
    opened = Descriptor(open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
  }
  if (!opened) {
    RefuseFile(file, Locking, errno);
  }
  return opened;
}

bool TellHolder(const Descriptor& file, const std::string& holder)
{
  return ftruncate(file.Number(), 0) == 0 && WriteAll(file, holder);
}

}  // namespace

bool LockPatiently(const Descriptor& file, std::chrono::milliseconds patience)
{
  constexpr std::chrono::milliseconds Moment{5};
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (flock(file.Number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) {
      return true;
    }
    if (std::chrono::steady_clock::now() >= deadline || EndIsWanted()) {
      return false;
    }
    std::this_thread::sleep_for(Moment);
  }
  return true;
}

FileLock::FileLock(const fs::path& file, const std::string& holder, std::chrono::milliseconds patience)
{
  const auto deadline = std::chrono::steady_clock::now() + patience;
  for (;;) {
    const EndHold hold;  // from the lock to what removes its file at the end
    Descriptor opened = OpenLock(file);
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (!LockPatiently(opened, left)) {
      return;
    }
    if (!StandsThere(opened, file)) {
      continue;
    }
    if (TellHolder(opened, holder)) {
      held_ = std::make_unique<Held>(file, std::move(opened));
      return;
    }
    const int error = errno;
    if (unlink(file.c_str()) != 0 || error != EBADF) {  // what another user left is replaced
      RefuseFile(file, Locking, error);
    }
  }
}

FileLock& FileLock::operator=(FileLock&& other) noexcept
{
  if (this != &other) {
    Release();
    held_ = std::move(other.held_);
  }
  return *this;
}

FileLock::~FileLock()
{
  Release();
}

bool FileLock::Holds(const fs::path& file) const
{
  return held_ != nullptr && held_->File == file;
}

/// The file goes while it is still locked: whoever waits for it looks again whether it stands there.
void FileLock::Release()
{
  if (held_ != nullptr) {
    const EndHold hold;
    unlink(held_->File.c_str());
    held_.reset();
  }
}

}  // namespace veln
