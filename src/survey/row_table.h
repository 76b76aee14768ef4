#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace veln {

/// One transect row: indexes of its first and its last site.
struct SurveyRow {
  std::size_t Start = 0;
  std::size_t End = 0;
  bool operator==(const SurveyRow&) const = default;
};

/// The rows of a survey as it stands (`RowCount`, `RowStart`, `RowEnd`): a row is a run of consecutive sites
/// with the same row number. At most 250 rows; none for a grid.
std::vector<SurveyRow> InitRows(std::span<const std::int16_t> rowNumber);

}  // namespace veln
