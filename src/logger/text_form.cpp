#include "logger/text_form.h"

#include "geodesy/angle_text.h"
#include "logger/field_split.h"
#include "toolkit/number_text.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace veln {

namespace {

constexpr std::string_view Mark = "\xEF\xBB\xBF";
constexpr std::string_view UsualComments = "# % // !";
constexpr std::size_t MostSampleLines = 400;

using Lines = std::vector<std::string_view>;

Lines SampleLines(std::string_view text, bool carriageReturns)
{
  Lines lines;
  const char end = carriageReturns ? '\r' : '\n';
  while (!text.empty() && lines.size() < MostSampleLines) {
    const std::size_t length = std::min(text.find(end), text.size());
    std::string_view line = text.substr(0, length);
    if (line.ends_with('\r')) {
      line.remove_suffix(1);
    }
    lines.push_back(line);
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return lines;
}

/// Whether a field is a number or an angle.
bool IsNumberLike(std::string_view field, bool decimalComma)
{
  if (ParseField(field, decimalComma)) {
    return true;
  }
  std::string pointed(field);
  if (decimalComma) {
    std::ranges::replace(pointed, ',', '.');
  }
  return ParseAngle(pointed, AngleAxis::Latitude, AngleForm::Degrees) ||
         ParseAngle(pointed, AngleAxis::Longitude, AngleForm::Degrees);
}

std::size_t CountNumbers(const std::vector<std::string_view>& fields, bool decimalComma)
{
  return static_cast<std::size_t>(std::ranges::count_if(
      fields, [decimalComma](auto field) { return IsNumberLike(field, decimalComma); }));
}

/// Whether numbers have a comma for their point: some field does, and none has a point.
bool HasDecimalCommas(const Lines& lines, char separator, bool quotes)
{
  std::size_t commas = 0;
  std::size_t points = 0;
  std::vector<std::string_view> fields;
  for (const std::string_view line : lines) {
    SplitFields(line, separator, quotes, fields);
    for (const std::string_view field : fields) {
      const bool comma = field.find(',') != std::string_view::npos;
      const bool point = field.find('.') != std::string_view::npos;
      commas += comma && IsNumberLike(field, true) ? 1 : 0;
      points += point && IsNumberLike(field, false) ? 1 : 0;
    }
  }
  return commas > points;
}

/// Numbers in each line, cut at a separator.
std::vector<std::size_t> NumbersByLine(const Lines& lines, const TextForm& form)
{
  std::vector<std::size_t> counts;
  std::vector<std::string_view> fields;
  for (const std::string_view line : lines) {
    SplitFields(line, form.Separator, form.Quotes, fields);
    counts.push_back(
        IsBlankLine(line) || IsComment(line, form.Comments) ? 0 : CountNumbers(fields, form.DecimalComma));
  }
  return counts;
}

/// The count of numbers that a line of data has in the middle: the median over the lines that have any.
std::size_t UsualCount(std::vector<std::size_t> counts)
{
  std::erase(counts, 0);
  if (counts.empty()) {
    return 0;
  }
  const auto middle = counts.begin() + static_cast<std::ptrdiff_t>(counts.size() / 2);
  std::ranges::nth_element(counts, middle);
  return *middle;
}

void RecogniseSeparator(const Lines& lines, const FormChoices& choices, TextForm& form)
{
  constexpr std::array<char, 4> Candidates = {'\t', ';', ',', BlankRuns};
  TextForm best = form;
  std::size_t most = 0;
  for (const char separator : Candidates) {
    if (choices.Separator && *choices.Separator != separator) {
      continue;
    }
    TextForm candidate = form;
    candidate.Separator = separator;
    candidate.DecimalComma =
        choices.DecimalComma.value_or(separator != ',' && HasDecimalCommas(lines, separator, form.Quotes));
    const auto counts = NumbersByLine(lines, candidate);
    std::size_t all = 0;
    for (const std::size_t count : counts) {
      all += count;
    }
    if (all > most || choices.Separator) {
      most = all;
      best = candidate;
    }
  }
  form = best;
}

/// A line of names: two fields or more, most of them with a letter, and no more than one in four a number.
bool IsHeader(std::string_view line, const TextForm& form)
{
  std::vector<std::string_view> fields;
  SplitFields(line, form.Separator, form.Quotes, fields);
  std::erase_if(fields, [](std::string_view field) { return field.empty(); });
  const auto letters = std::ranges::count_if(fields, [](std::string_view field) {
    return std::ranges::any_of(field, [](unsigned char c) { return std::isalpha(c) != 0 || c > 127; });
  });
  return fields.size() >= 2 && 2 * static_cast<std::size_t>(letters) >= fields.size() &&
         4 * CountNumbers(fields, form.DecimalComma) <= fields.size();
}

std::size_t CountFields(std::string_view line, const TextForm& form)
{
  std::vector<std::string_view> fields;
  SplitFields(line, form.Separator, form.Quotes, fields);
  return fields.size();
}

/// A line of units below that of the names.
bool IsUnitsLine(std::string_view line, const TextForm& form)
{
  constexpr std::array<std::string_view, 18> Units = {"deg", "dd",   "degrees", "m",   "s",  "sec",
                                                      "ms",  "ms/m", "ds/m",    "ppt", "%",  "km/h",
                                                      "m/s", "mv",   "v",       "c",   "hz", "-"};
  std::vector<std::string_view> fields;
  SplitFields(line, form.Separator, form.Quotes, fields);
  std::erase_if(fields, [](std::string_view field) { return field.empty(); });
  const auto units = std::ranges::count_if(fields, [&Units](std::string_view field) {
    std::string unit;
    for (const char c : field) {
      const bool bracket = std::string_view("[]()").find(c) != std::string_view::npos;
      unit += bracket ? "" : std::string(1, static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    }
    return std::ranges::find(Units, std::string_view(unit)) != Units.end();
  });
  return 2 * static_cast<std::size_t>(units) > fields.size();
}

/// The line of names nearest before the first line of data (both counted from 1), with at least half as many
/// fields as that has; 0 without one. Lines between the two are data that came to nothing.
std::size_t FindHeader(const Lines& lines, std::size_t firstData, const TextForm& form)
{
  const std::size_t fields = firstData > lines.size() ? 0 : CountFields(lines[firstData - 1], form);
  for (std::size_t line = std::min(firstData - 1, lines.size()); line > 0; --line) {
    if (IsHeader(lines[line - 1], form) && 2 * CountFields(lines[line - 1], form) >= fields) {
      return line;
    }
  }
  return 0;
}

void RecogniseHeader(const Lines& lines, const FormChoices& choices, TextForm& form)
{
  const auto counts = NumbersByLine(lines, form);
  const std::size_t usual = UsualCount(counts);
  const std::size_t skipped = choices.SkippedLines.value_or(0);
  std::size_t first = skipped;
  while (first < lines.size() && (counts[first] == 0 || counts[first] * 2 < usual)) {
    ++first;
  }
  form.HeaderLine = choices.HeaderLine.value_or(FindHeader(lines, first + 1, form));
  form.FirstDataLine = form.HeaderLine == 0 ? first + 1 : std::max(skipped, form.HeaderLine) + 1;
  if (choices.HeaderLine == std::size_t{0}) {
    form.FirstDataLine = skipped + 1;
  }
  const std::size_t header = form.HeaderLine;
  if (!choices.HeaderLine && header > 1 && IsUnitsLine(lines[header - 1], form) &&
      IsHeader(lines[header - 2], form)) {
    --form.HeaderLine;
  }
  if (form.HeaderLine > 0 && form.HeaderLine <= lines.size()) {
    form.Header = std::string(lines[form.HeaderLine - 1]);
  }
}

}  // namespace

bool IsBlankLine(std::string_view line)
{
  return TrimField(line).empty();
}

bool IsComment(std::string_view line, std::string_view comments)
{
  line = TrimField(line);
  if (line.empty() || comments.find(line.front()) == std::string_view::npos) {
    return false;
  }
  while (!comments.empty()) {
    const std::size_t length = std::min(comments.find(' '), comments.size());
    if (length > 0 && line.starts_with(comments.substr(0, length))) {
      return true;
    }
    comments.remove_prefix(std::min(length + 1, comments.size()));
  }
  return false;
}

TextForm RecogniseTextForm(std::string_view beginning, const FormChoices& choices)
{
  TextForm form;
  form.ByteOrderMark = beginning.starts_with(Mark);
  if (form.ByteOrderMark) {
    beginning.remove_prefix(Mark.size());
  }
  form.CarriageReturns = choices.CarriageReturns.value_or(beginning.find('\n') == std::string_view::npos &&
                                                          beginning.find('\r') != std::string_view::npos);
  form.CrLf = !form.CarriageReturns && beginning.find("\r\n") != std::string_view::npos;
  form.Quotes = choices.Quotes.value_or(true);
  form.Comments = choices.Comments.value_or(std::string(UsualComments));
  const Lines lines = SampleLines(beginning, form.CarriageReturns);
  // A character that is cut at the sample's end is no sign of another encoding: whole lines are judged.
  form.Latin1 = choices.Latin1.value_or(
      std::ranges::any_of(lines.begin(), lines.empty() ? lines.end() : lines.end() - 1,
                          [](std::string_view line) { return !IsUtf8(line); }));
  RecogniseSeparator(lines, choices, form);
  RecogniseHeader(lines, choices, form);
  return form;
}

namespace {

std::string DescribeSeparator(char separator)
{
  switch (separator) {
    case '\t':
      return "tab-separated";
    case ';':
      return "semicolon-separated";
    case ',':
      return "comma-separated";
    default:
      return "separated by blanks";
  }
}

std::string DescribeLineEnds(const TextForm& form)
{
  if (form.CarriageReturns) {
    return ", lines end in CR";
  }
  return form.CrLf ? ", lines end in CR LF" : ", lines end in LF";
}

}  // namespace

std::string DescribeForm(const TextForm& form)
{
  const std::string header = form.HeaderLine == 0
                                 ? "no header"
                                 : "header in line " + GeneralForm(static_cast<double>(form.HeaderLine));
  return DescribeSeparator(form.Separator) + ", " + header +
         (form.DecimalComma ? ", decimal comma" : ", decimal point") +
         (form.Latin1 ? ", Latin-1" : ", UTF-8") + (form.ByteOrderMark ? " with byte order mark" : "") +
         DescribeLineEnds(form);
}

}  // namespace veln
