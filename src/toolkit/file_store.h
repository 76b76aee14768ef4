#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// A file composed in memory, with the place where it belongs.
struct ComposedFile {
  std::filesystem::path Path;
  std::string Content;
};

/// Hands a file's content over in blocks until `take` gives false or the file ends. Throws Refusal with the
/// file's name and the system's reason.
void ReadBlocks(const std::filesystem::path& path, const std::function<bool(std::string_view block)>& take);

/// The content of a file, byte for byte, or as much of its beginning as `mostBytes`. Throws Refusal with the
/// file's name and the system's reason.
std::string ReadFile(const std::filesystem::path& path,
                     std::size_t mostBytes = std::numeric_limits<std::size_t>::max());

/// Puts files that belong together in place, all of them or none: each is written beside its target, flushed
/// to disk and renamed over it. Older files of these names are replaced on success and stay whole on failure,
/// and nothing else is left behind. Symbolic links are followed, permissions kept; a device or FIFO is opened
/// and written. Throws Refusal with the file's name and the system's reason.
void WriteFiles(const std::vector<ComposedFile>& files);

/// Makes one directory. Throws Refusal with the system's text if it can't, also if it exists already.
void MakeDirectory(const std::filesystem::path& path);

}  // namespace veln
