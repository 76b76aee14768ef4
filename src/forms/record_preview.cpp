#include "forms/record_preview.h"

#include "survey/raw_items.h"
#include "toolkit/file_store.h"
#include "toolkit/number_text.h"

namespace veln {

namespace {

constexpr ByRecordItem<const char*> Headings = {{"site-ID", "x-cord", "y-cord", "s1", "s2", "row-num"}};

/// Why the import would refuse an item, or nothing. `lastRow` is the row number of the record before.
std::string FaultOf(std::string_view item, RecordItem column, bool log, int lastRow)
{
  const auto number = ParseNumber(item);
  if (!number) {
    return "not a number";
  }
  const bool whole = column == RecordItem::SiteId || column == RecordItem::Row;
  const auto code = RoundToInt16(*number);
  if (whole && !code) {
    return "too large for a whole number of 16 bits";
  }
  if (column == RecordItem::Row && (*code < lastRow || *code > MostRows)) {
    return "row numbers lie in 1 to 250 and never fall";
  }
  if (log && (column == RecordItem::Signal1 || column == RecordItem::Signal2) && *number <= 0) {
    return "a logarithm needs a positive signal";
  }
  return "";
}

}  // namespace

RecordPreview PreviewRecords(std::string_view content, const RecordLayout& layout, bool log)
{
  const std::vector<RecordItem> columns = layout.Items();
  RecordPreview preview;
  for (const RecordItem column : columns) {
    preview.Headings.emplace_back(Headings[column]);
  }
  RawItems items(SkipByteOrderMark(content));
  int lastRow = 1;
  while (preview.Records.size() < PreviewedRecords && !items.AtEnd()) {
    std::vector<std::string>& record = preview.Records.emplace_back();
    for (const RecordItem column : columns) {
      const auto item = items.Next();
      if (!item) {
        break;
      }
      const std::string fault = FaultOf(*item, column, log, lastRow);
      if (!fault.empty() && !preview.FirstFault) {
        preview.FirstFault = {preview.Records.size() - 1, record.size(), fault};
      }
      if (fault.empty() && column == RecordItem::Row) {
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
    content.erase(content.find_last_of(ItemEnds) + 1);  // the last item may have been cut
  }
  return PreviewRecords(content, layout, log);
}

}  // namespace veln
