#pragma once

#include "toolkit/descriptor.h"

#include <filesystem>
#include <map>
#include <utility>

namespace veln {

/// The folders of a set of files, each opened once: to lock out other writers and to flush what was renamed.
/// A folder that may not be read, or whose file system can do neither, is left as it is.
class FolderHandles {
 public:
  /// `file` is what a failure is told for. Throws Refusal with the system's reason if the folder can't be
  /// opened.
  void Add(const std::filesystem::path& folder, const std::filesystem::path& file, bool toBeLocked);
  /// Locks those that are to be locked, in an order that is the same for all processes. Throws Refusal if a
  /// folder stays locked by another process.
  void Lock() const;
  /// Throws Refusal with the system's reason.
  void Flush() const;

 private:
  struct Handle {
    Descriptor Folder;
    std::filesystem::path File;
    bool ToBeLocked = false;
  };
  std::map<std::pair<unsigned long, unsigned long>, Handle> handles_;  // by device and number
};

}  // namespace veln
