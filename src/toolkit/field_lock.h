#pragma once

#include "toolkit/file_lock.h"

#include <chrono>
#include <filesystem>
#include <string>

namespace veln {

/// A field of a project, by the folder that its files stand in.
struct FieldPlace {
  std::filesystem::path Folder;
  std::string Project;
  std::string FieldId;
};

/// The file whose lock makes a process the field's only one.
std::filesystem::path FieldLockFile(const FieldPlace& place);

/// Makes the field this program's own for as long as the lock is held, and finishes or takes back what a
/// process that died left there. `program` is told to those who find the field in use. Holds nothing where
/// the folder may not be written at all, so that nobody can spoil anything. Throws Refusal if another process
/// has the field for the whole time, or with the system's reason.
FileLock TakeField(const FieldPlace& place, const std::string& program, std::chrono::milliseconds patience);

}  // namespace veln
