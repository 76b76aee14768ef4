#include "logger/coil_records.h"

#include "geodesy/angle_text.h"
#include "logger/field_split.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace veln {

namespace {

constexpr std::size_t ContentBytes = CoilRecordBytes - 1;
constexpr double MillisecondsPerSecond = 1000;

bool IsReadingLetter(char letter)
{
  return letter == 'T' || letter == 't' || letter == '2';
}

/// The time stamp of a reading, in its columns 16 to 25.
std::optional<double> ReadingStamp(std::string_view record)
{
  constexpr std::size_t StampColumn = 15;
  return ParseNumber(TrimField(record.substr(StampColumn, ContentBytes - StampColumn)));
}

bool IsLineStart(std::string_view record)
{
  return record[0] == 'L' && std::isdigit(static_cast<unsigned char>(record[1])) != 0;
}

/// A coil's conductivity in mS/m from the two bytes of its converter: 5 V in 1024 steps of 64 parts, 160
/// steps of zero, 8 mS/m a step.
double Conductivity(std::string_view record, std::size_t at, double offset)
{
  const auto high = static_cast<unsigned char>(record[at]);
  const auto low = static_cast<unsigned char>(record[at + 1]);
  return ((high * 256.0 + low) * 5 / 1024 - 160) * 8 + offset;
}

std::vector<std::string_view> SentenceItems(std::string_view sentence)
{
  std::vector<std::string_view> items;
  SplitFields(sentence.substr(0, sentence.find('*')), ',', false, items);
  return items;
}

/// Whether a sentence of NMEA 0183 holds its checksum, the exclusive or of its characters; one without
/// passes.
bool HoldsChecksum(std::string_view sentence)
{
  constexpr int Hexadecimal = 16;
  const std::size_t star = sentence.find('*');
  if (star == std::string_view::npos) {
    return true;
  }
  unsigned sum = 0;
  for (const char c : sentence.substr(1, star - 1)) {
    sum ^= static_cast<unsigned char>(c);
  }
  unsigned told = 0;
  const std::string_view digits = sentence.substr(star + 1, 2);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), told, Hexadecimal);
  return error == std::errc() && told == sum;
}

/// Latitude and longitude of a GGA sentence with a fix. Empty for other sentences and for broken ones.
std::optional<CoilFix> ReadGga(std::string_view sentence)
{
  constexpr std::size_t FewestItems = 7;
  const auto items = SentenceItems(sentence);
  if (items.size() < FewestItems || items[0].size() != 6 || !items[0].ends_with("GGA") || items[6] == "0" ||
      items[6].empty() || !HoldsChecksum(sentence)) {
    return std::nullopt;
  }
  const auto latitude = ParseAngle(std::string(items[2]) + std::string(items[3]), AngleAxis::Latitude,
                                   AngleForm::PackedMinutes);
  const auto longitude = ParseAngle(std::string(items[4]) + std::string(items[5]), AngleAxis::Longitude,
                                    AngleForm::PackedMinutes);
  if (!latitude || !longitude || !IsInRange(*latitude, AngleAxis::Latitude) ||
      !IsInRange(*longitude, AngleAxis::Longitude)) {
    return std::nullopt;
  }
  return CoilFix{0, *latitude, *longitude};
}

}  // namespace

bool IsCoilRecordFile(std::string_view beginning)
{
  constexpr std::size_t MostRecords = 2'000;
  bool survey = false;
  std::size_t records = 0;
  for (; beginning.size() >= CoilRecordBytes && records < MostRecords; ++records) {
    if (beginning[ContentBytes] != '\n') {
      return false;
    }
    const bool reading = IsReadingLetter(beginning[0]) && ReadingStamp(beginning);
    survey = survey || reading || IsLineStart(beginning) || beginning.starts_with("@$");
    beginning.remove_prefix(CoilRecordBytes);
  }
  return records >= 2 && survey;
}

std::vector<TableColumn> CoilRecordColumns()
{
  std::vector<TableColumn> columns;
  for (const char* cell : {"Latitude", "Longitude", "Time", "Cond.long[mS/m]", "Cond.short[mS/m]", "Line"}) {
    columns.push_back(ReadHeaderCell(cell, columns.size()));
    columns.back().Numeric = true;
  }
  return columns;
}

CoilRecords::Kind CoilRecords::Take(std::string_view record)
{
  const bool first = first_;
  first_ = false;
  if (record.size() < CoilRecordBytes || record[ContentBytes] != '\n') {
    return Kind::Damaged;
  }
  record.remove_suffix(1);
  if (first) {
    return Kind::Header;
  }
  switch (record[0]) {
    case 'T':
    case 't':
    case '2':
      return TakeReading(record);
    case '@':
      sentence_ = record.substr(1);
      return Kind::Header;
    case '#':
      sentence_ += record.substr(1);
      return Kind::Header;
    case '!':
      return EndSentence(record);
    default:
      TakeHeader(record);
      return Kind::Header;
  }
}

CoilRecords::Kind CoilRecords::TakeReading(std::string_view record)
{
  constexpr std::size_t LongBytes = 6;
  constexpr std::size_t ShortBytes = 2;
  const auto stamp = ReadingStamp(record);
  if (!stamp) {
    return Kind::Damaged;
  }
  reading_ = {*stamp, Conductivity(record, LongBytes, longOffset_),
              Conductivity(record, ShortBytes, shortOffset_)};
  return Kind::Reading;
}

CoilRecords::Kind CoilRecords::EndSentence(std::string_view record)
{
  const auto stamp =
      ParseNumber(TrimField(record.substr(record.find_last_of(' ', record.find_last_not_of(' ')) + 1)));
  const auto fix = ReadGga(TrimField(sentence_));
  sentence_.clear();
  if (!fix || !stamp) {
    return Kind::Header;
  }
  fix_ = *fix;
  fix_.Milliseconds = *stamp;
  return Kind::Fix;
}

void CoilRecords::TakeHeader(std::string_view record)
{
  constexpr std::size_t OffsetWidth = 10;
  constexpr std::size_t DateWidth = 8;
  const std::string_view content = TrimField(record.substr(1));
  if (IsLineStart(record)) {
    ++line_;
  } else if (record.starts_with("O1") || record.starts_with("O2")) {
    const auto offset = ParseNumber(TrimField(record.substr(2, OffsetWidth)));
    (record[1] == '1' ? longOffset_ : shortOffset_) = offset.value_or(0);
  } else if (record[0] == 'Z') {
    date_ = content.substr(0, std::min(content.find(' '), DateWidth));
  } else if (record[0] == '*') {
    const std::size_t blank = std::min(content.find(' '), content.size());
    const auto clock = ParseClock(content.substr(0, blank), ClockStyle::TimeOfDay);
    const auto stamp = ParseNumber(TrimField(content.substr(blank)));
    if (clock && stamp && !clockOffset_) {
      clockOffset_ = clock->Seconds - *stamp / MillisecondsPerSecond;
    }
  }
}

}  // namespace veln
