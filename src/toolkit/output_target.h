#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace veln {

/// Where an output goes.
struct OutputTarget {
  std::filesystem::path Named;  ///< as asked for; messages tell this one
  std::filesystem::path Path;   ///< at the end of all symbolic links; need not exist
  bool Stream = false;          ///< a device or FIFO, which is opened and written, never replaced
  std::optional<std::filesystem::perms> Permissions;  ///< of the file that stands there
};

/// Follows an output's name to where it goes. Throws Refusal, with the name and the system's reason, for a
/// directory, a file that its own owner may not write, and a place that can't be looked at.
OutputTarget FindTarget(const std::filesystem::path& named);

/// Whether a name, perhaps at the end of links, is that of an existing device or FIFO.
bool IsStream(const std::filesystem::path& named);

/// What a name leads to, through links and "..", whether it exists or not. Two names lead to one file if
/// their identities are equal.
struct FileIdentity {
  std::string Path;                           ///< without links
  unsigned long long Device = 0, Number = 0;  ///< of an existing file, else 0
  bool operator==(const FileIdentity& other) const
  {
    return Path == other.Path || (Number != 0 && Device == other.Device && Number == other.Number);
  }
};
FileIdentity IdentityOf(const std::filesystem::path& named);

/// The directory that a path's last name stands in.
std::filesystem::path FolderOf(const std::filesystem::path& path);

/// A path from the root, without "." and "..": as typed otherwise, but behind a linked directory ".." leads
/// where the system goes. Throws Refusal if a relative path has no current directory to count from.
std::filesystem::path AbsolutePath(const std::filesystem::path& path);

/// What a file's failure is told with: its name, and what could not be done for which reason of the system.
[[noreturn]] void RefuseFile(const std::filesystem::path& path, const std::string& what, int error);

}  // namespace veln
