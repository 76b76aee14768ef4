#include "toolkit/field_lock.h"

#include "toolkit/clock.h"
#include "toolkit/file_set.h"
#include "toolkit/refusal.h"

#include <sstream>
#include <unistd.h>

namespace veln {

namespace {

constexpr std::size_t LongestHolder = 200;  // bytes

/// Who has the field, as the lock's file tells it: program, process, date and time, a line each.
std::string DescribeHolder(const std::filesystem::path& file)
{
  std::istringstream lines(ReadFile(file, LongestHolder));
  std::string program;
  std::string process;
  std::string date;
  std::string time;
  lines >> program >> process >> date >> time;
  return time.empty() ? "another program" : program + ", process " + process + ", since " + time;
}

[[noreturn]] void RefuseField(const FieldPlace& place)
{
  std::string holder;
  try {
    holder = DescribeHolder(FieldLockFile(place));
  } catch (const Refusal&) {
    holder = "another program";  // it has just ended, or is another user's, whose file may not be read
  }
  throw Refusal("Field " + place.FieldId + " of project " + place.Project + " is in use by " + holder +
                ". Try again when it has ended.");
}

}  // namespace

std::filesystem::path FieldLockFile(const FieldPlace& place)
{
  return place.Folder / ("." + place.FieldId + ".lock");
}

FileLock TakeField(const FieldPlace& place, const std::string& program, std::chrono::milliseconds patience)
{
  if (access(place.Folder.c_str(), W_OK) != 0) {
    return {};
  }
  const std::string holder = program + "\n" + std::to_string(getpid()) + "\n" + SystemDateTime() + "\n";
  FileLock lock(FieldLockFile(place), holder, patience);
  if (!lock) {
    RefuseField(place);
  }
  TidyFileSets({place.Folder, place.FieldId});
  return lock;
}

}  // namespace veln
