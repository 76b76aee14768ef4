#include "cli/output_check.h"

#include "toolkit/output_target.h"
#include "toolkit/refusal.h"
#include "workspace/project.h"

#include <algorithm>
#include <system_error>

namespace veln {

namespace {

std::vector<std::filesystem::path> FieldFiles(const RunOptions& options)
{
  std::vector<std::string> suffixes = {"info.txt", "tstd.std", "ugsd.txt", "data.svy"};
  for (int number = 1; number <= MaxDesigns; ++number) {
    const std::string digit = std::to_string(number);
    suffixes.insert(suffixes.end(), {"rsd" + digit + ".txt", "gps" + digit + ".txt", "xrs" + digit + ".asc"});
  }
  std::vector<std::filesystem::path> files;
  files.reserve(suffixes.size());
  const auto folder = PlaceOfField(options.Root, options.Project, options.Field).Folder;
  for (const std::string& suffix : suffixes) {
    files.push_back(folder / (options.Field + suffix));
  }
  return files;
}

struct NamedFile {
  std::filesystem::path Name;
  FileIdentity Identity;
};

/// Takes an output in among the files known so far.
void AddOutput(std::vector<NamedFile>& known, const std::filesystem::path& output,
               const FileIdentity& identity)
{
  const auto same = std::ranges::find(known, identity, &NamedFile::Identity);
  if (same == known.end()) {
    known.push_back({output, identity});
    return;
  }
  const bool survey = same == known.begin();
  throw Refusal(output.string() +
                    (survey ? "\nis the survey itself: " : "\nis another output of this run: ") +
                    same->Name.string(),
                RefusalKind::Usage);
}

}  // namespace

void RefuseSharedOutputs(const RunOptions& options)
{
  std::vector<NamedFile> known = {{options.Import.FileName, IdentityOf(options.Import.FileName)}};
  const std::filesystem::path folder =
      IdentityOf(PlaceOfField(options.Root, options.Project, options.Field).Folder).Path;
  for (const auto& file : FieldFiles(options)) {
    std::error_code failure;
    const bool missing =
        std::filesystem::symlink_status(file, failure).type() == std::filesystem::file_type::not_found;
    AddOutput(known, file, missing ? FileIdentity{folder / file.filename()} : IdentityOf(file));
  }
  for (const PictureOption& picture : options.Pictures) {
    AddOutput(known, picture.File, IdentityOf(picture.File));
  }
}

}  // namespace veln
