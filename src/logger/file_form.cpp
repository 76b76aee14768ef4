#include "logger/file_form.h"

#include "logger/coil_records.h"
#include "logger/field_split.h"
#include "logger/input_file.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <utility>

namespace veln {

namespace {

constexpr std::size_t SampleBytes = 65'536;

/// What is no text at all is told by what it begins with.
void RefuseOtherFiles(std::string_view beginning, const std::string& name)
{
  if (beginning.empty()) {
    throw Refusal(name + " is empty.");
  }
  if (beginning.starts_with("PK\x03\x04")) {
    throw Refusal(name + " is a packed file or a spreadsheet; unpack it, or save the table as CSV text.");
  }
  if (beginning.starts_with("\xFF\xFE") || beginning.starts_with("\xFE\xFF")) {
    throw Refusal(name + " is UTF-16 text; save it as UTF-8.");
  }
}

/// The lines of data that the sample holds whole.
std::vector<std::string_view> DataLines(std::string_view beginning, const TextForm& form)
{
  constexpr std::size_t MostLines = 200;
  std::vector<std::string_view> lines;
  const char end = form.CarriageReturns ? '\r' : '\n';
  for (std::size_t number = 1; !beginning.empty() && lines.size() < MostLines; ++number) {
    const std::size_t length = std::min(beginning.find(end), beginning.size());
    const std::string_view line = beginning.substr(0, length);
    if (number >= form.FirstDataLine && !IsBlankLine(line) && !IsComment(line, form.Comments)) {
      lines.push_back(line);
    }
    beginning.remove_prefix(std::min(length + 1, beginning.size()));
  }
  return lines;
}

/// A column is numeric when more than half of its filled cells are numbers.
void JudgeColumn(TableColumn& column)
{
  const auto filled =
      std::ranges::count_if(column.Sample, [](const std::string& text) { return !text.empty(); });
  const auto numbers = std::ranges::count_if(
      column.Sample, [](const std::string& text) { return ParseField(text, false).has_value(); });
  column.Numeric = numbers * 2 > filled;
}

std::vector<TableColumn> ReadColumns(std::string_view beginning, const TextForm& form)
{
  constexpr std::size_t MostColumns = 1'000;
  std::vector<TableColumn> columns;
  std::vector<std::string_view> fields;
  std::string_view header = form.Header;
  if (form.HeaderLine > 0 && IsComment(header, form.Comments)) {
    header.remove_prefix(std::min(header.find_first_not_of("#%/! \t"), header.size()));
  }
  SplitFields(header, form.Separator, form.Quotes, fields, MostColumns);
  if (form.HeaderLine == 0) {
    fields.clear();
  }
  columns.reserve(fields.size());
  for (std::size_t i = 0; i < fields.size(); ++i) {
    columns.push_back(ReadHeaderCell(FieldText(fields[i], form.Latin1), i));
  }
  for (const std::string_view line : DataLines(beginning, form)) {
    SplitFields(line, form.Separator, form.Quotes, fields, MostColumns);
    for (std::size_t i = columns.size(); i < fields.size(); ++i) {
      columns.push_back(ReadHeaderCell("", i));
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
      std::string text = i < fields.size() ? FieldText(fields[i], form.Latin1) : "";
      std::ranges::replace(text, form.DecimalComma ? ',' : '.', '.');
      columns[i].Sample.push_back(std::move(text));
    }
  }
  // Columns behind the last name that no line fills come of separators at the ends of lines.
  const auto isNothing = [](const TableColumn& column) {
    return column.Name.starts_with("column ") &&
           std::ranges::all_of(column.Sample, [](const std::string& text) { return text.empty(); });
  };
  while (!columns.empty() && isNothing(columns.back())) {
    columns.pop_back();
  }
  for (TableColumn& column : columns) {
    JudgeColumn(column);
  }
  return columns;
}

}  // namespace

FileForm RecogniseColumns(std::string_view beginning, const std::string& name, const FormChoices& form)
{
  RefuseOtherFiles(beginning, name);
  FileForm file;
  if (IsCoilRecordFile(beginning)) {
    file.Records = true;
    file.Columns = CoilRecordColumns();
    return file;
  }
  beginning = beginning.substr(0, SampleBytes);
  file.Text = RecogniseTextForm(beginning, form);
  if (file.Text.ByteOrderMark) {
    constexpr std::size_t MarkBytes = 3;
    beginning.remove_prefix(MarkBytes);
  }
  file.Columns = ReadColumns(beginning, file.Text);
  return file;
}

FileForm RecogniseFile(std::string_view beginning, const std::string& name, const FormChoices& form,
                       const ColumnChoices& columns)
{
  FileForm file = RecogniseColumns(beginning, name, form);
  if (file.Columns.size() < 2) {
    throw Refusal(name + ": no table was found in it; tell --separator or --header if it is one.");
  }
  file.Roles = AssignColumns(file.Columns, columns, name, file.Notes);
  return file;
}

FileForm RecogniseFile(const std::filesystem::path& path, const FormChoices& form,
                       const ColumnChoices& columns)
{
  InputFile file(path);
  file.Extend();
  return RecogniseFile(file.Window(), path.string(), form, columns);
}

}  // namespace veln
