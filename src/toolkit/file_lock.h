#pragma once

#include "toolkit/descriptor.h"
#include "toolkit/program_end.h"

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>

namespace veln {

/// How long a lock is waited for.
inline constexpr std::chrono::seconds LockPatience{10};

/// Locks an open file or directory against all other processes that do so; closing it unlocks. False if
/// another one holds it for the whole time. A file system without locks counts as locked.
bool LockPatiently(const Descriptor& file, std::chrono::milliseconds patience);

/// A file whose lock makes one process the owner of something. It stands as long as it is locked: the holder
/// removes it, and one that a dead process left is taken over, whatever it tells.
class FileLock {
 public:
  /// Holds nothing.
  FileLock() = default;

  /// Takes the lock and writes `holder` into the file; holds nothing if another process keeps it for the
  /// whole time. Throws Refusal with the file's name and the system's reason.
  FileLock(const std::filesystem::path& file, const std::string& holder, std::chrono::milliseconds patience);
  FileLock(FileLock&&) noexcept = default;
  FileLock& operator=(FileLock&& other) noexcept;
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  ~FileLock();

  explicit operator bool() const { return held_ != nullptr; }
  /// Whether this lock is held, by that file.
  [[nodiscard]] bool Holds(const std::filesystem::path& file) const;

 private:
  struct Held {
    Held(const std::filesystem::path& file, Descriptor opened)
        : File(file), Opened(std::move(opened)), Removed(file)
    {
    }

    std::filesystem::path File;
    Descriptor Opened;
    RemovedAtEnd Removed;
  };
  void Release();

  std::unique_ptr<Held> held_;
};

}  // namespace veln
