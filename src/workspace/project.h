#pragma once

#include "toolkit/dialogs.h"
#include "toolkit/field_lock.h"
#include "toolkit/file_store.h"
#include "workspace/survey_state.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

inline constexpr int FieldIdLength = 4;        ///< characters
inline constexpr int LongestDescription = 60;  ///< characters of a field's description

/// A digit or an ASCII letter.
bool IsFieldIdCharacter(char32_t c);

/// A digit, an ASCII letter, "_" or ".".
bool IsProjectNameCharacter(char32_t c);

/// One or more characters of a project's name; the names "." and ".." are not projects.
bool IsProjectName(std::string_view name);

/// Exactly 4 characters of a field ID.
bool IsFieldId(std::string_view code);

/// The projects of a program directory, by name: every directory under its `data`. Throws Refusal with the
/// program's warning if `data` can't be listed.
std::vector<std::string> ListProjects(const std::filesystem::path& programDir);

/// Where a field's output files stand, and who it is for others that want it.
FieldPlace PlaceOfField(const std::filesystem::path& programDir, const std::string& project,
                        const std::string& fieldId);

/// Puts output files of the field that belong together in place, all of them or none; what a sudden end
/// leaves unfinished the field's next owner finishes. Throws Refusal with the file's name and the system's
/// reason.
void WriteFieldFiles(const SurveyState& state, const std::vector<ComposedFile>& files);

/// The question of `CheckAlphaCode`, for a field ID that is in use.
std::string FieldInUseQuestion();

/// Whether the field was worked on before: its information file, which every finished validation writes,
/// exists. Throws Refusal with the system's reason if that can't be told.
bool IsFieldInUse(const std::filesystem::path& programDir, const std::string& project,
                  const std::string& fieldId);

/// The overwrite check: asks, after a beep, if the field is in use. True: go on; false: the user is choosing
/// another code.
bool CheckAlphaCode(const std::filesystem::path& programDir, const std::string& project,
                    const std::string& fieldId, Dialogs& dialogs);

/// Takes project, field ID and description into the survey record and opens the import. Throws Refusal once a
/// survey is imported.
void AcceptProject(SurveyState& state, const std::string& project, const std::string& fieldId,
                   const std::string& description);

}  // namespace veln
