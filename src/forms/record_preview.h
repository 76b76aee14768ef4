#pragma once

#include "survey/data_load.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

inline constexpr int PreviewedRecords = 10;

/// The first records of a raw survey file, as a layout reads them.
struct RecordPreview {
  /// An item that the import would refuse, and why.
  struct Fault {
    std::size_t Record = 0;
    std::size_t Item = 0;
    std::string Reason;
  };

  std::vector<std::string> Headings;  ///< what each column will be read as
  std::vector<std::vector<std::string>>
      Records;  ///< items as they stand; the last record may be cut by the file's end
  std::optional<Fault> FirstFault;
};

/// Reads up to ten records from the beginning of a file's content.
RecordPreview PreviewRecords(std::string_view content, const RecordLayout& layout, bool log);

/// The same from a file, of which no more than its beginning is read. Throws Refusal with the system's
/// reason.
RecordPreview PreviewFile(const std::string& fileName, const RecordLayout& layout, bool log);

}  // namespace veln
