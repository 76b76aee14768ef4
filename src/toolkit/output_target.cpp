#include "toolkit/output_target.h"

#include "toolkit/refusal.h"

#include <cerrno>
#include <sys/stat.h>
#include <system_error>

namespace veln {

namespace fs = std::filesystem;

namespace {

constexpr const char* Writing = "written";

/// The name that the last of a chain of symbolic links leads to. Throws Refusal if there is no end.
fs::path EndOfLinks(const fs::path& named)
{
  constexpr int MostLinks = 40;
  fs::path path = named;
  for (int i = 0; i < MostLinks; ++i) {
    std::error_code failure;
    const fs::file_type type = fs::symlink_status(path, failure).type();
    const fs::path next = type == fs::file_type::symlink ? fs::read_symlink(path, failure) : fs::path();
    if (type == fs::file_type::none || (next.empty() && type == fs::file_type::symlink)) {
      RefuseFile(named, Writing, failure.value());
    }
    if (next.empty()) {
      return path;
    }
    path = path.parent_path() / next;
  }
  RefuseFile(named, Writing, ELOOP);
}

bool MayBeWrittenByOwner(fs::perms permissions)
{
  return (permissions & fs::perms::owner_write) != fs::perms::none;
}

}  // namespace

fs::path FolderOf(const fs::path& path)
{
  return path.has_parent_path() ? path.parent_path() : ".";
}

void RefuseFile(const fs::path& path, const std::string& what, int error)
{
  throw Refusal(path.string() + "\ncould not be " + what + ": " + std::generic_category().message(error));
}

OutputTarget FindTarget(const fs::path& named)
{
  OutputTarget target{named, named, false, std::nullopt};
  std::error_code failure;
  const fs::file_status there = fs::status(named, failure);
  switch (there.type()) {
    case fs::file_type::none:
      RefuseFile(named, Writing, failure.value());
    case fs::file_type::directory:
      RefuseFile(named, Writing, EISDIR);
    case fs::file_type::not_found:
      break;
    case fs::file_type::regular:
      if (!MayBeWrittenByOwner(there.permissions())) {
        RefuseFile(named, Writing, EACCES);
      }
      target.Permissions = there.permissions();
      break;
    default:
      target.Stream = true;
      return target;
  }
  target.Path = EndOfLinks(named);
  return target;
}

bool IsStream(const fs::path& named)
{
  std::error_code failure;
  const fs::file_status there = fs::status(named, failure);
  return fs::exists(there) && there.type() != fs::file_type::regular &&
         there.type() != fs::file_type::directory;
}

FileIdentity IdentityOf(const fs::path& named)
{
  const fs::path end = EndOfLinks(named);
  std::error_code failure;
  const fs::path folder = fs::weakly_canonical(FolderOf(end), failure);
  FileIdentity identity{((failure ? FolderOf(end) : folder) / end.filename()).string()};
  struct stat there = {};
  if (stat(named.c_str(), &there) == 0) {
    identity.Device = there.st_dev;
    identity.Number = there.st_ino;
  }
  return identity;
}

fs::path AbsolutePath(const fs::path& path)
{
  std::error_code failure;
  const fs::path whole = fs::absolute(path, failure);
  if (failure) {
    RefuseFile("The current directory", "found", failure.value());
  }
  fs::path plain;
  for (const fs::path& part : whole) {
    if (part == "..") {
      const fs::path real = fs::is_symlink(plain, failure) ? fs::canonical(plain, failure) : plain;
      plain = (failure ? plain : real).parent_path();
    } else if (part != "." && !part.empty()) {
      plain /= part;
    }
  }
  return plain;
}

}  // namespace veln
