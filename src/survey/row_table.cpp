#include "survey/row_table.h"

namespace veln {

std::vector<SurveyRow> InitRows(std::span<const std::int16_t> rowNumber)
{
  std::vector<SurveyRow> rows;
  for (std::size_t i = 0; i < rowNumber.size(); ++i) {
    if (i == 0 || rowNumber[i] != rowNumber[i - 1]) {
      rows.push_back({i, i});
    }
    rows.back().End = i;
  }
  return rows;
}

}  // namespace veln
