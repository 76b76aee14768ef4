#pragma once

#include "toolkit/file_store.h"

#include <filesystem>
#include <string>
#include <vector>

namespace veln {

/// Whose sets of files these are: a folder, and a name that no other owner has there, such as a field ID. Who
/// writes sets or tidies up for an owner holds the owner's lock.
struct SetOwner {
  std::filesystem::path Folder;
  std::string Name;
};

/// Puts files that belong together in place, all of them or none, as `WriteFiles` does, and for those in the
/// owner's folder beyond the death of the process: a journal beside them tells `TidyFileSets` what to finish.
/// Throws Refusal with the file's name and the system's reason.
void WriteFileSet(const std::vector<ComposedFile>& files, const SetOwner& owner);

/// Finishes an owner's set that was on its way into place when its process died, and removes what stands
/// there of others that had not come so far. Throws Refusal with the file's name and the system's reason.
void TidyFileSets(const SetOwner& owner);

}  // namespace veln
