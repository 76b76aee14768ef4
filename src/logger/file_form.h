#pragma once

#include "logger/table_columns.h"
#include "logger/text_form.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// What was recognised of a logger's file.
struct FileForm {
  bool Records = false;  ///< records of 26 bytes; else lines of text
  TextForm Text;
  std::vector<TableColumn> Columns;
  ColumnRoles Roles;
  std::vector<std::string> Notes;
};

/// Recognises a file by its beginning: form, columns and their roles. Throws Refusal where it is no table of
/// a logger, or its columns can't be told; `name` is for its words.
FileForm RecogniseFile(std::string_view beginning, const std::string& name, const FormChoices& form,
                       const ColumnChoices& columns);

/// The same for a file on disk, of which only the beginning is read. Throws Refusal if it can't be read.
FileForm RecogniseFile(const std::filesystem::path& path, const FormChoices& form,
                       const ColumnChoices& columns);

/// Form and columns without their roles: for a preview where roles can't be told yet.
FileForm RecogniseColumns(std::string_view beginning, const std::string& name, const FormChoices& form);

}  // namespace veln
