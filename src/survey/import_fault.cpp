#include "survey/import_fault.h"

#include "survey/raw_items.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace veln {

namespace {

std::string Counted(std::size_t number)
{
  return GeneralForm(static_cast<double>(number));
}

/// The names of a record's items, in order.
std::vector<const char*> ItemNames(const RecordLayout& layout)
{
  std::vector<const char*> names;
  if (layout.SiteIdColumn) {
    names.push_back("site-ID");
  }
  names.insert(names.end(), {"x", "y", "s1"});
  if (layout.SecondSignal) {
    names.push_back("s2");
  }
  if (layout.Transect) {
    names.push_back("row");
  }
  return names;
}

std::string RecordText(std::size_t record, const char* name)
{
  return "record " + Counted(record) + ", " + name + ": ";
}

/// The first item that is not a number; records are told by the items that they should have.
std::string NonNumericItem(std::string_view content, const std::vector<const char*>& names)
{
  constexpr std::size_t MostShown = 40;
  RawItems items(content);
  std::size_t count = 0;
  while (const auto item = items.Next()) {
    if (!ParseNumber(*item)) {
      return RecordText(count / names.size() + 1, names[count % names.size()]) + "\"" +
             std::string(item->substr(0, MostShown)) + "\" is not a number";
    }
    ++count;
  }
  return "";
}

std::string LineCountFault(std::size_t lines)
{
  const bool fits = lines >= FewestSites && lines <= MostSites;
  return fits ? "" : "the file has " + Counted(lines) + (lines == 1 ? " line" : " lines");
}

/// The first line that has not as many items as a record.
std::string OddLine(std::string_view content, std::size_t wanted)
{
  for (std::size_t line = 1; !content.empty(); ++line) {
    const std::size_t length = std::min(content.find_first_of("\r\n"), content.size());
    RawItems items(content.substr(0, length));
    std::size_t count = 0;
    while (items.Next()) {
      ++count;
    }
    if (count != wanted) {
      return "line " + Counted(line) + " has " + Counted(count) + (count == 1 ? " item" : " items") +
             ", a record should have " + Counted(wanted);
    }
    content.remove_prefix(length);
    content.remove_prefix(content.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, content.size()));
  }
  return "";
}

/// Looks at the numbers of each record: `judge(record, numbers)`.
template <class Judge>
void ForEachRecord(std::string_view content, std::size_t itemCount, Judge judge)
{
  RawItems items(content);
  std::vector<double> numbers;
  for (std::size_t record = 1;; ++record) {
    numbers.clear();
    while (numbers.size() < itemCount) {
      const auto item = items.Next();
      const auto number = item ? ParseNumber(*item) : std::nullopt;
      if (!number) {
        return;
      }
      numbers.push_back(*number);
    }
    judge(record, numbers);
  }
}

std::string NonPositiveReadings(std::string_view content, const RecordLayout& layout, std::size_t itemCount)
{
  constexpr std::size_t MostNamed = 5;
  const std::size_t s1 = layout.SiteIdColumn ? 3 : 2;
  std::size_t found = 0;
  std::string records;
  ForEachRecord(content, itemCount, [&](std::size_t record, const std::vector<double>& numbers) {
    if (numbers[s1] > 0 && (!layout.SecondSignal || numbers[s1 + 1] > 0)) {
      return;
    }
    if (++found <= MostNamed) {
      records += (records.empty() ? "" : ", ") + Counted(record);
    }
  });
  if (found == 0) {
    return "";
  }
  return Counted(found) + (found == 1 ? " record has a reading" : " records have readings") +
         " of 0 or less: " + records + (found > MostNamed ? ", …" : "");
}

std::string InvalidRow(std::string_view content, std::size_t itemCount)
{
  std::string fault;
  double last = 1;
  ForEachRecord(content, itemCount, [&](std::size_t record, const std::vector<double>& numbers) {
    const double row = numbers.back();
    if (fault.empty() && !(row >= last && row <= MostRows)) {
      fault = RecordText(record, "row") + GeneralForm(row) +
              (row >= 1 && row < last ? " comes behind " + GeneralForm(last) : " is not 1 to 250");
    }
    last = row;
  });
  return fault;
}

}  // namespace

std::string ImportFault(std::string_view content, const RecordLayout& layout, bool log)
{
  content = SkipByteOrderMark(content);
  const std::vector<const char*> names = ItemNames(layout);
  std::string fault = LineCountFault(CountLines(content));
  fault = fault.empty() ? NonNumericItem(content, names) : fault;
  fault = fault.empty() ? OddLine(content, names.size()) : fault;
  if (fault.empty() && log) {
    fault = NonPositiveReadings(content, layout, names.size());
  }
  if (fault.empty() && layout.Transect) {
    fault = InvalidRow(content, names.size());
  }
  return fault;
}

}  // namespace veln
