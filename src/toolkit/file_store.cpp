#include "toolkit/file_store.h"

#include "toolkit/descriptor.h"
#include "toolkit/file_set.h"
#include "toolkit/output_target.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace veln {

namespace fs = std::filesystem;

void ReadBlocks(const fs::path& path, const std::function<bool(std::string_view block)>& take)
{
  const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file) {
    RefuseFile(path, "read", errno);
  }
  std::array<char, 1U << 16U> block{};
  for (;;) {
    const ssize_t count = read(file.Number(), block.data(), block.size());
    if (count < 0 && errno != EINTR) {
      RefuseFile(path, "read", errno);
    }
    if (count == 0 || (count > 0 && !take({block.data(), static_cast<std::size_t>(count)}))) {
      return;
    }
  }
}

std::string ReadFile(const fs::path& path, std::size_t mostBytes)
{
  std::string content;
  ReadBlocks(path, [&content, mostBytes](std::string_view block) {
    content += block.substr(0, mostBytes - content.size());
    return content.size() < mostBytes;
  });
  return content;
}

void WriteFiles(const std::vector<ComposedFile>& files)
{
  WriteFileSet(files, {});
}

void MakeDirectory(const fs::path& path)
{
  constexpr mode_t Accessible = 0777;  // what the user's umask leaves of it
  if (mkdir(path.c_str(), Accessible) != 0) {
    RefuseFile(path, "made", errno);
  }
}

}  // namespace veln
