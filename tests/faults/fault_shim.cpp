// Preloaded before a program, counts its file operations below one folder and lets the n-th fail, be cut
// short, or end the process. By the environment:
//
//   VELN_FAULT_FOLDER   operations on names below it count, and on what was opened there
//   VELN_FAULT_AT       the number of the operation, from 1
//   VELN_FAULT_KIND     fail, short (a write or read of half the bytes) or kill
//   VELN_FAULT_COUNT    a file that gets the number of operations when the program ends
//
// A test program that has it preloaded drives it by `VelnFaultArm` and `VelnFaultCount` instead.

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

enum class Kind { Fail, Short, Kill };

std::array<char, 4096> folder{};
long at = 0;
long count = 0;
Kind kind = Kind::Fail;
std::array<bool, 1024> inFolder{};  // by file number

template <class Function>
Function* Real(const char* name)
{
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool Counts(const char* path)
{
  const std::string_view below = folder.data();
  return !below.empty() && path != nullptr && std::string_view(path).starts_with(below);
}

bool Counts(int file)
{
  return file >= 0 && file < static_cast<int>(inFolder.size()) && inFolder.at(static_cast<std::size_t>(file));
}

/// Whether this operation is the one. A process that is to be killed does not return.
bool IsTheOne()
{
  if (++count != at) {
    return false;
  }
  if (kind == Kind::Kill) {
    kill(getpid(), SIGKILL);
  }
  return true;
}

bool Fails(bool counts, int error)
{
  if (!counts || !IsTheOne() || kind != Kind::Fail) {
    return false;
  }
  errno = error;
  return true;
}

/// The bytes that a write or read gets to do; -1 if it fails.
ssize_t Allowed(int file, std::size_t size, int error)
{
  if (!Counts(file) || !IsTheOne()) {
    return static_cast<ssize_t>(size);
  }
  errno = error;
  return kind == Kind::Short ? static_cast<ssize_t>((size + 1) / 2) : -1;
}

int Opened(int file, const char* path)
{
  if (file >= 0 && file < static_cast<int>(inFolder.size())) {
    inFolder.at(static_cast<std::size_t>(file)) = Counts(path);
  }
  return file;
}

__attribute__((constructor)) void Start()
{
  const char* below = std::getenv("VELN_FAULT_FOLDER");
  std::snprintf(folder.data(), folder.size(), "%s", below == nullptr ? "" : below);
  const char* number = std::getenv("VELN_FAULT_AT");
  at = number == nullptr ? 0 : std::atol(number);
  const std::string_view name =
      std::getenv("VELN_FAULT_KIND") == nullptr ? "fail" : std::getenv("VELN_FAULT_KIND");
  kind = name == "kill" ? Kind::Kill : name == "short" ? Kind::Short : Kind::Fail;
}

__attribute__((destructor)) void Finish()
{
  if (const char* name = std::getenv("VELN_FAULT_COUNT"); name != nullptr) {
    if (std::FILE* file = std::fopen(name, "w"); file != nullptr) {
      std::fprintf(file, "%ld\n", count);
      std::fclose(file);
    }
  }
}

}  // namespace

extern "C" {

/// From here on operations below `below` count from 1, and that of number `number` fails.
void VelnFaultArm(const char* below, long number)
{
  std::snprintf(folder.data(), folder.size(), "%s", below);
  at = number;
  count = 0;
  kind = Kind::Fail;
}

long VelnFaultCount()
{
  return count;
}

int open(const char* path, int flags, ...)
{
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  if (Fails(Counts(path), (flags & O_CREAT) != 0 ? ENOSPC : EIO)) {
    return -1;
  }
  return Opened(Real<int(const char*, int, ...)>("open")(path, flags, mode), path);
}

ssize_t write(int file, const void* bytes, std::size_t size)
{
  const ssize_t allowed = Allowed(file, size, ENOSPC);
  return allowed < 0 ? -1 : Real<decltype(write)>("write")(file, bytes, static_cast<std::size_t>(allowed));
}

ssize_t pwrite(int file, const void* bytes, std::size_t size, off_t offset)
{
  const ssize_t allowed = Allowed(file, size, ENOSPC);
  return allowed < 0
             ? -1
             : Real<decltype(pwrite)>("pwrite")(file, bytes, static_cast<std::size_t>(allowed), offset);
}

ssize_t read(int file, void* bytes, std::size_t size)
{
  const ssize_t allowed = Allowed(file, size, EIO);
  return allowed < 0 ? -1 : Real<decltype(read)>("read")(file, bytes, static_cast<std::size_t>(allowed));
}

int fsync(int file)
{
  return Fails(Counts(file), EIO) ? -1 : Real<decltype(fsync)>("fsync")(file);
}

int fchmod(int file, mode_t mode)
{
  return Fails(Counts(file), EPERM) ? -1 : Real<decltype(fchmod)>("fchmod")(file, mode);
}

int ftruncate(int file, off_t size)
{
  return Fails(Counts(file), EIO) ? -1 : Real<decltype(ftruncate)>("ftruncate")(file, size);
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"  // the system's headers have a structure of this name
int flock(int file, int operation)
{
  return Fails(Counts(file), ENOLCK) ? -1 : Real<int(int, int)>("flock")(file, operation);
}
#pragma GCC diagnostic pop

int rename(const char* from, const char* to)
{
  return Fails(Counts(to), EIO) ? -1 : Real<decltype(rename)>("rename")(from, to);
}

int link(const char* from, const char* to)
{
  return Fails(Counts(to), EPERM) ? -1 : Real<decltype(link)>("link")(from, to);
}

int unlink(const char* path)
{
  return Fails(Counts(path), EIO) ? -1 : Real<decltype(unlink)>("unlink")(path);
}

int mkdir(const char* path, mode_t mode)
{
  return Fails(Counts(path), ENOSPC) ? -1 : Real<decltype(mkdir)>("mkdir")(path, mode);
}

int access(const char* path, int mode)
{
  return Fails(Counts(path), EACCES) ? -1 : Real<decltype(access)>("access")(path, mode);
}

int stat(const char* path, struct stat* found)
{
  return Fails(Counts(path), EACCES) ? -1 : Real<int(const char*, struct stat*)>("stat")(path, found);
}

int lstat(const char* path, struct stat* found)
{
  return Fails(Counts(path), EACCES) ? -1 : Real<int(const char*, struct stat*)>("lstat")(path, found);
}

}  // extern "C"
