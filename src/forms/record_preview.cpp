#include "forms/record_preview.h"

#include "survey/raw_items.h"
#include "toolkit/file_store.h"
#include "toolkit/number_text.h"

#include <array>

namespace veln {

namespace {

enum class Column { SiteId, X, Y, Signal1, Signal2, Row };

std::vector<Column> ColumnsOf(const RecordLayout& layout)
{
  std::vector<Column> columns = {Column::X, Column::Y, Column::Signal1};
  if (layout.SiteIdColumn) {
    columns.insert(columns.begin(), Column::SiteId);
  }
  if (layout.SecondSignal) {
    columns.push_back(Column::Signal2);
  }
  if (layout.Transect) {
    columns.push_back(Column::Row);
  }
  return columns;
}

const char* HeadingOf(Column column)
{
  constexpr std::array<const char*, 6> Headings = {"site-ID", "x-cord", "y-cord", "s1", "s2", "row-num"};
  return Headings.at(static_cast<std::size_t>(column));
}

/// Why the import would refuse an item, or nothing. `lastRow` is the row number of the record before.
std::string FaultOf(std::string_view item, Column column, bool log, int lastRow)
{
  const auto number = ParseNumber(item);
  if (!number) {
    return "not a number";
  }
  const bool whole = column == Column::SiteId || column == Column::Row;
  const auto code = RoundToInt16(*number);
  if (whole && !code) {
    return "too large for a whole number of 16 bits";
  }
  if (column == Column::Row && (*code < lastRow || *code > MostRows)) {
    return "row numbers lie in 1 to 250 and never fall";
  }
  if (log && (column == Column::Signal1 || column == Column::Signal2) && *number <= 0) {
    return "a logarithm needs a positive signal";
  }
  return "";
}

}  // namespace

RecordPreview PreviewRecords(std::string_view content, const RecordLayout& layout, bool log)
{
  const std::vector<Column> columns = ColumnsOf(layout);
  RecordPreview preview;
  for (const Column column : columns) {
    preview.Headings.emplace_back(HeadingOf(column));
  }
  RawItems items(SkipByteOrderMark(content));
  int lastRow = 1;
  while (preview.Records.size() < PreviewedRecords && !items.AtEnd()) {
    std::vector<std::string>& record = preview.Records.emplace_back();
    for (const Column column : columns) {
      const auto item = items.Next();
      if (!item) {
        break;
      }
      const std::string fault = FaultOf(*item, column, log, lastRow);
      if (!fault.empty() && !preview.FirstFault) {
        preview.FirstFault = {preview.Records.size() - 1, record.size(), fault};
      }
      if (fault.empty() && column == Column::Row) {
        lastRow = RoundToInt16(ParseNumber(*item).value_or(lastRow)).value_or(0);
      }
      record.emplace_back(*item);
    }
  }
  return preview;
}

RecordPreview PreviewFile(const std::string& fileName, const RecordLayout& layout, bool log)
{
  constexpr std::size_t Beginning = 16384;  // bytes; far more than ten records of at most six items
  std::string content = ReadFile(fileName, Beginning);
  if (content.size() == Beginning) {
    content.erase(content.find_last_of(", \t\r\n") + 1);  // the last item may have been cut
  }
  return PreviewRecords(content, layout, log);
}

}  // namespace veln
