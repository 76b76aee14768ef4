#include "survey/data_load.h"

#include "survey/raw_items.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace veln {

namespace {

constexpr int CounterStep = 100;

constexpr const char* TooManyRecords =
    "Error!  Your file contains more than 30,000 records.\nData import process has been aborted!";
constexpr const char* TooFewRecords =
    "Error!  Your file contains less than 50 records.\nData import process has been aborted!";
constexpr const char* NonNumericData =
    "Error!  Non-numeric data was detected in input file!\nData import process has been aborted!\n \n"
    "Please edit this file before attempting to import it again.";
constexpr const char* NonPositiveData =
    "Error!  Non-positive signal data was detected in input file!\nThis signal data can not be log "
    "transformed.\n"
    "Data import process has been aborted!";
constexpr const char* FewerColumns =
    "Error!  There are fewer data columns present in input file\n"
    "than you indicated!  Data import process has been aborted!";
constexpr const char* MoreColumns =
    "Error!  There are more data columns present in input file\n"
    "than you indicated!  Data import process has been aborted!";
constexpr const char* InvalidRows =
    "Error!  The row numbers in your file are invalid.\nData import process has been aborted!";

void Report(const ImportProgress& progress, ImportPass pass, int count)
{
  if (progress) {
    progress(pass, count);
  }
}

int ScanLines(std::string_view content, const ImportProgress& progress)
{
  Report(progress, ImportPass::Scanning, 0);
  const std::size_t lines = CountLines(content);
  for (int count = CounterStep; std::cmp_less_equal(count, lines) && count <= MostSites;
       count += CounterStep) {
    Report(progress, ImportPass::Scanning, count);
  }
  if (lines > MostSites) {
    throw Refusal(TooManyRecords);
  }
  Report(progress, ImportPass::Scanning, static_cast<int>(lines));
  if (lines < FewestSites) {
    throw Refusal(TooFewRecords);
  }
  return static_cast<int>(lines);
}

/// Reads the records of a raw survey of `surveySize` lines.
class RecordReader {
 public:
  RecordReader(std::string_view content, const RecordLayout& layout, bool log, int surveySize)
      : items_(content), layout_(layout), recordItems_(layout.Items()), log_(log), surveySize_(surveySize)
  {
  }

  bool AtEnd() { return items_.AtEnd(); }
  [[nodiscard]] int Count() const { return count_; }
  RawSurvey Take() { return std::move(survey_); }

  /// Tests one record in the order items, numbers, room, 16 bits, logarithms, and stores it.
  void ReadRecord()
  {
    ByRecordItem<std::string_view> texts;
    for (const RecordItem item : recordItems_) {
      const auto text = items_.Next();
      texts[item] = text ? *text : throw Refusal(ColumnMismatch());
    }
    ++count_;
    ByRecordItem<double> numbers;
    for (const RecordItem item : recordItems_) {
      const auto number = ParseNumber(texts[item]);
      numbers[item] = number ? *number : throw Refusal(NonNumericData);
    }
    if (count_ > surveySize_) {
      throw Refusal(ColumnMismatch());
    }
    Store(numbers);
  }

  /// Which way the columns differ from what was told shows in how far the records have come.
  [[nodiscard]] const char* ColumnMismatch() const
  {
    return count_ < surveySize_ ? FewerColumns : MoreColumns;
  }

 private:
  [[nodiscard]] std::int16_t Whole(double number) const
  {
    const auto whole = RoundToInt16(number);
    return whole ? *whole : throw Refusal(ColumnMismatch());
  }

  void Store(const ByRecordItem<double>& numbers)
  {
    using enum RecordItem;
    survey_.SiteId.push_back(layout_.SiteIdColumn ? Whole(numbers[SiteId])
                                                  : static_cast<std::int16_t>(count_));
    survey_.CoordX.push_back(numbers[X]);
    survey_.CoordY.push_back(numbers[Y]);
    if (layout_.Transect) {
      survey_.RowNumber.push_back(Whole(numbers[Row]));
    }
    StoreSignal(survey_.Signal1, numbers[Signal1]);
    if (layout_.SecondSignal) {
      StoreSignal(survey_.Signal2, numbers[Signal2]);
    }
  }

  void StoreSignal(std::vector<double>& column, double value) const
  {
    if (log_ && !(value > 0)) {
      throw Refusal(NonPositiveData);
    }
    column.push_back(log_ ? std::log(value) : value);
  }

  RawItems items_;
  RecordLayout layout_;
  std::vector<RecordItem> recordItems_;
  bool log_;
  int surveySize_;
  int count_ = 0;
  RawSurvey survey_;
};

/// Row numbers lie in 1 to 250 and never fall.
void TestRowNumbers(const std::vector<std::int16_t>& rows)
{
  int last = 1;
  for (const std::int16_t row : rows) {
    if (row < last || row > MostRows) {
      throw Refusal(InvalidRows);
    }
    last = row;
  }
}

}  // namespace

std::vector<RecordItem> RecordLayout::Items() const
{
  using enum RecordItem;
  std::vector<RecordItem> items = {X, Y, Signal1};
  if (SiteIdColumn) {
    items.insert(items.begin(), SiteId);
  }
  if (SecondSignal) {
    items.push_back(Signal2);
  }
  if (Transect) {
    items.push_back(Row);
  }
  return items;
}

RawSurvey DataLoad(std::string_view content, const RecordLayout& layout, bool log,
                   const ImportProgress& progress)
{
  content = SkipByteOrderMark(content);
  const int surveySize = ScanLines(content, progress);
  RecordReader reader(content, layout, log, surveySize);
  Report(progress, ImportPass::Importing, 0);
  while (!reader.AtEnd()) {
    reader.ReadRecord();
    if (reader.Count() % CounterStep == 0) {
      Report(progress, ImportPass::Importing, reader.Count());
    }
  }
  Report(progress, ImportPass::Importing, reader.Count());
  if (reader.Count() < surveySize) {
    throw Refusal(FewerColumns);
  }
  RawSurvey survey = reader.Take();
  TestRowNumbers(survey.RowNumber);
  return survey;
}

}  // namespace veln
