#include "toolkit/folder_handle.h"

#include "toolkit/file_lock.h"
#include "toolkit/output_target.h"
#include "toolkit/refusal.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace veln {

void FolderHandles::Add(const std::filesystem::path& folder, const std::filesystem::path& file,
                        bool toBeLocked)
{
  Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  struct stat known = {};
  if (!opened || fstat(opened.Number(), &known) != 0) {
    if (errno != EACCES) {
      RefuseFile(file, "written", errno);
    }
    return;
  }
  Handle& handle = handles_[{known.st_dev, known.st_ino}];
  if (!handle.Folder) {
    handle.Folder = std::move(opened);
    handle.File = file;
  }
  handle.ToBeLocked |= toBeLocked;
}

void FolderHandles::Lock() const
{
  for (const auto& [id, handle] : handles_) {
    if (handle.ToBeLocked && !LockPatiently(handle.Folder, LockPatience)) {
      throw Refusal(handle.File.string() +
                    "\ncould not be written: another program is writing into its directory.");
    }
  }
}

void FolderHandles::Flush() const
{
  for (const auto& [id, handle] : handles_) {
    const bool flushed = fsync(handle.Folder.Number()) == 0;
    if (!flushed && errno != EINVAL && errno != ENOTSUP) {
      RefuseFile(handle.File, "written", errno);
    }
  }
}

}  // namespace veln
