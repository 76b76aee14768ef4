#include "toolkit/file_set.h"

#include "toolkit/folder_handle.h"
#include "toolkit/output_target.h"
#include "toolkit/program_end.h"
#include "toolkit/refusal.h"
#include "toolkit/stream_output.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace veln {

namespace fs = std::filesystem;

namespace {

constexpr const char* Fresh = ".new";
constexpr const char* Older = ".old";
constexpr std::string_view JournalEnd = "\n.\n";  // no file is named "."

void Write(const fs::path& path, const std::string& content, const OutputTarget& target)
{
  constexpr mode_t Readable = 0666;  // what the user's umask leaves of it
  const auto kept = target.Permissions ? static_cast<mode_t>(*target.Permissions) & 0777U : Readable;
  const Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kept));
  const bool good = file && WriteAll(file, content) &&
                    (!target.Permissions || fchmod(file.Number(), kept) == 0) && fsync(file.Number()) == 0;
  if (!good) {
    RefuseFile(target.Named, "written", errno);
  }
}

/// Removes a file if it is there. A second try is made: what is left behind outlives the set.
bool Remove(const fs::path& path)
{
  constexpr int Tries = 2;
  for (int i = 0; i < Tries; ++i) {
    if (unlink(path.c_str()) == 0 || errno == ENOENT) {
      return true;
    }
  }
  return false;
}

/// A file of a set on its way into place.
class Member {
 public:
  /// `stem` is the first part of the names that stand beside the target meanwhile.
  Member(OutputTarget target, const std::string& stem)
      : target_(std::move(target)),
        fresh_(target_.Path.parent_path() / (stem + Fresh)),
        older_(target_.Path.parent_path() / (stem + Older))
  {
  }

  [[nodiscard]] const OutputTarget& Target() const { return target_; }

  void WriteFresh(const std::string& content)
  {
    // Nobody else uses these names: what bears one was left by a process that died.
    if (!Remove(fresh_) || !Remove(older_)) {
      RefuseFile(target_.Named, "written", errno);
    }
    Write(fresh_, content, target_);
  }

  /// Keeps the file that is to be replaced under a second name.
  void KeepOlder()
  {
    if (!target_.Permissions) {
      return;
    }
    struct stat there = {};
    // What belongs to someone else might not be removed under its second name.
    const bool own = stat(target_.Path.c_str(), &there) == 0 && there.st_uid == geteuid();
    if (!own || link(target_.Path.c_str(), older_.c_str()) != 0) {  // or a file system without hard links
      std::error_code failure;
      fs::copy_file(target_.Path, older_, failure);
      if (failure) {
        RefuseFile(target_.Named, "written", failure.value());
      }
    }
  }

  void PutInPlace()
  {
    if (std::rename(fresh_.c_str(), target_.Path.c_str()) != 0) {
      RefuseFile(target_.Named, "written", errno);
    }
    inPlace_ = true;
  }

  void TakeBack()
  {
    if (inPlace_ && target_.Permissions) {
      std::rename(older_.c_str(), target_.Path.c_str());
    } else if (inPlace_) {
      Remove(target_.Path);
    } else {
      Remove(older_);
    }
    Remove(fresh_);
  }

  [[nodiscard]] bool DropOlder() const { return !target_.Permissions || Remove(older_); }

 private:
  OutputTarget target_;
  fs::path fresh_, older_;
  bool inPlace_ = false;
};

std::string StemOf(const SetOwner& owner, std::size_t number)
{
  return "." + owner.Name + "-" + std::to_string(number);
}

/// The stem for a file outside of the owner's folder: short, and always the same for one name, so that the
/// next writer of that name finds what a dead one left.
std::string StemOf(const std::string& name)
{
  std::uint64_t hash = 14695981039346656037U;  // FNV-1a
  for (const char c : name) {
    hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  }
  std::array<char, 17> digits{};
  std::snprintf(digits.data(), digits.size(), "%016jx", static_cast<std::uintmax_t>(hash));
  return std::string(".veln-") + digits.data();
}

fs::path JournalOf(const SetOwner& owner)
{
  return owner.Folder / ("." + owner.Name + ".set");
}

/// Files that go into place together. What was not brought to its end is taken back on destruction.
class FileSet {
 public:
  FileSet(const std::vector<ComposedFile>& files, const SetOwner& owner) : owner_(owner)
  {
    for (const ComposedFile& file : files) {
      OutputTarget target = FindTarget(file.Path);
      if (target.Stream) {
        streams_.push_back(&file);
        continue;
      }
      const bool own = !owner.Name.empty() && target.Path.parent_path() == owner.Folder;
      if (own) {
        journal_ += target.Path.filename().string() + "\n";
        ++owned_;
      }
      folders_.Add(FolderOf(target.Path), target.Named, !own);
      const std::string stem = own ? StemOf(owner, owned_) : StemOf(target.Path.filename().string());
      members_.emplace_back(Member(std::move(target), stem), &file);
    }
  }
  FileSet(const FileSet&) = delete;
  FileSet& operator=(const FileSet&) = delete;

  ~FileSet()
  {
    if (!locked_ || stands_) {
      return;
    }
    if (owned_ > 1) {
      Remove(JournalOf(owner_));
    }
    for (auto& [member, file] : members_) {
      member.TakeBack();
    }
  }

  void PutInPlace()
  {
    folders_.Lock();
    locked_ = true;
    for (auto& [member, file] : members_) {
      member.WriteFresh(file->Content);
    }
    for (auto& [member, file] : members_) {
      member.KeepOlder();
    }
    for (const ComposedFile* stream : streams_) {
      WriteStream(stream->Path, stream->Content);
    }
    WriteJournal();
    for (auto& [member, file] : members_) {
      member.PutInPlace();
    }
    folders_.Flush();
    stands_ = true;
    DropOlder();
  }

 private:
  /// From here on a set that its process leaves unfinished is finished by the owner's next one.
  void WriteJournal()
  {
    if (owned_ > 1) {
      const fs::path journal = JournalOf(owner_);
      Remove(journal);
      Write(journal, journal_ + ".\n", {members_.front().first.Target().Named, journal, false, std::nullopt});
    }
  }

  void DropOlder()
  {
    std::string left;
    for (const auto& [member, file] : members_) {
      left = member.DropOlder() ? left : member.Target().Named.string();
    }
    if (owned_ > 1 && !Remove(JournalOf(owner_))) {
      left = JournalOf(owner_).string();
    }
    if (!left.empty()) {
      throw Refusal(left + "\nwas written, but what stood beside it meanwhile could not be removed: " +
                    std::generic_category().message(errno));
    }
  }

  const SetOwner& owner_;
  FolderHandles folders_;
  std::vector<std::pair<Member, const ComposedFile*>> members_;
  std::vector<const ComposedFile*> streams_;
  std::string journal_;
  std::size_t owned_ = 0;
  bool locked_ = false;
  bool stands_ = false;
};

/// Renames what a complete journal tells and is not in place yet.
void FinishSet(const SetOwner& owner, std::string_view journal)
{
  if (!journal.ends_with(JournalEnd) || journal.find('/') != std::string_view::npos) {
    return;  // its process died before the first file went into place, or it is no journal
  }
  journal.remove_suffix(2);
  for (std::size_t number = 1; !journal.empty(); ++number) {
    const std::string_view name = journal.substr(0, journal.find('\n'));
    const fs::path fresh = owner.Folder / (StemOf(owner, number) + Fresh);
    const fs::path target = owner.Folder / name;
    if (std::rename(fresh.c_str(), target.c_str()) != 0 && errno != ENOENT) {
      RefuseFile(target, "written", errno);
    }
    journal.remove_prefix(name.size() + 1);
  }
}

bool IsLeftOver(const SetOwner& owner, const std::string& name)
{
  std::string_view rest = name;
  const std::string stem = "." + owner.Name + "-";
  if (!rest.starts_with(stem) || !(rest.ends_with(Fresh) || rest.ends_with(Older))) {
    return false;
  }
  rest.remove_prefix(stem.size());
  rest.remove_suffix(std::string_view(Fresh).size());
  return !rest.empty() && rest.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The names in a folder of what the owner's dead processes left.
std::vector<fs::path> LeftOvers(const SetOwner& owner)
{
  std::vector<fs::path> found;
  std::error_code failure;
  for (fs::directory_iterator entry(owner.Folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    if (IsLeftOver(owner, entry->path().filename().string())) {
      found.push_back(entry->path());
    }
  }
  if (failure && failure != std::errc::permission_denied) {
    RefuseFile(owner.Folder, "listed", failure.value());
  }
  return found;
}

}  // namespace

void WriteFileSet(const std::vector<ComposedFile>& files, const SetOwner& owner)
{
  const EndHold hold;
  FileSet(files, owner).PutInPlace();
}

void TidyFileSets(const SetOwner& owner)
{
  const EndHold hold;
  std::vector<fs::path> found = LeftOvers(owner);
  std::error_code failure;
  const bool journal = fs::exists(JournalOf(owner), failure);
  if (failure) {
    RefuseFile(JournalOf(owner), "read", failure.value());
  }
  if (journal) {
    FinishSet(owner, ReadFile(JournalOf(owner)));
    FolderHandles folder;
    folder.Add(owner.Folder, owner.Folder, false);
    folder.Flush();
    found.push_back(JournalOf(owner));
  }
  for (const fs::path& path : found) {
    if (!Remove(path)) {
      RefuseFile(path, "removed", errno);
    }
  }
}

}  // namespace veln
