#include "logger/coil_records.h"
#include "logger/input_file.h"
#include "logger/reading_store.h"
#include "toolkit/number_text.h"

#include <algorithm>
#include <array>
#include <limits>

namespace veln {

namespace {

constexpr double MillisecondsPerSecond = 1000;
constexpr std::size_t FirstSignalColumn = 3;  // Cond.long, then Cond.short

/// Reads the records of one file.
class RecordReader {
 public:
  RecordReader(FileAccount& account, Readings& readings, ReadingStore& store)
      : account_(account), readings_(readings), store_(store)
  {
  }

  void Take(std::string_view record)
  {
    ++account_.Lines;
    switch (records_.Take(record)) {
      case CoilRecords::Kind::Header:
        ++account_.Header;
        break;
      case CoilRecords::Kind::Fix:
        ++account_.Header;
        AddFix();
        break;
      case CoilRecords::Kind::Reading:
        if (store_.Wants(account_)) {
          AddReading();
        }
        break;
      case CoilRecords::Kind::Damaged:
        if (store_.Wants(account_)) {
          AddDamaged();
        }
        break;
    }
  }

  /// Times of readings and fixes count from midnight where the logger told its clock.
  void Finish()
  {
    account_.HasClock = true;
    TakeDate();
    const double offset = records_.ClockOffset().value_or(0);
    const auto file = static_cast<std::uint16_t>(readings_.Files.size() - 1);
    for (auto point = readings_.Points.rbegin(); point != readings_.Points.rend() && point->File == file;
         ++point) {
      point->Time += offset;
    }
    for (auto fix = readings_.Fixes.rbegin(); fix != readings_.Fixes.rend() && fix->File == file; ++fix) {
      fix->Time += offset;
    }
  }

 private:
  [[nodiscard]] std::uint16_t Line() const
  {
    return static_cast<std::uint16_t>(
        std::min<std::size_t>(records_.Line(), std::numeric_limits<std::uint16_t>::max()));
  }

  void AddFix()
  {
    const CoilFix& fix = records_.PresentFix();
    readings_.Fixes.push_back({fix.Milliseconds / MillisecondsPerSecond, fix.Longitude, fix.Latitude, Line(),
                               static_cast<std::uint16_t>(readings_.Files.size() - 1)});
  }

  void AddReading()
  {
    const CoilReading& reading = records_.Reading();
    const ColumnRoles& roles = account_.Form.Roles;
    TrackPoint point;
    for (std::size_t i = 0; i < roles.SignalCount; ++i) {
      point.Signals.at(i) = roles.Signals.at(i) == FirstSignalColumn ? reading.Long : reading.Short;
    }
    point.Time = reading.Milliseconds / MillisecondsPerSecond;
    point.Row = Line();
    point.File = static_cast<std::uint16_t>(readings_.Files.size() - 1);
    AddId();
    store_.Keep(account_.Lines, point);
  }

  void AddDamaged()
  {
    if (account_.FirstFault.empty()) {
      account_.FirstFault = account_.Path.string() + ", record " +
                            GeneralForm(static_cast<double>(account_.Lines)) + ": the record is damaged";
    }
    AddId();
    store_.Drop(account_.Lines, Fate::Missing);
  }

  void AddId()
  {
    if (account_.Form.Roles.Id) {
      readings_.Ids.Add(GeneralForm(static_cast<double>(records_.Line())));
    }
  }

  /// "16032018": day, month, year.
  void TakeDate()
  {
    const std::string& text = records_.Date();
    constexpr std::size_t Digits = 8;
    if (text.size() != Digits || !records_.ClockOffset()) {
      return;
    }
    DateParts date;
    date.Numbers = {static_cast<int>(ParseNumber(text.substr(0, 2)).value_or(0)),
                    static_cast<int>(ParseNumber(text.substr(2, 2)).value_or(0)),
                    static_cast<int>(ParseNumber(text.substr(4)).value_or(0))};
    date.Order = DateOrder::DayFirst;
    account_.Dates.push_back(date);
    account_.HasDates = DayNumber(date, DateOrder::DayFirst).has_value();
  }

  FileAccount& account_;
  Readings& readings_;
  ReadingStore& store_;
  CoilRecords records_;
};

}  // namespace

void ReadCoilRecords(InputFile& file, FileAccount& account, Readings& readings, ReadingStore& store)
{
  RecordReader reader(account, readings, store);
  do {
    while (file.Window().size() >= CoilRecordBytes) {
      reader.Take(file.Window().substr(0, CoilRecordBytes));
      file.Take(CoilRecordBytes);
    }
  } while (file.Extend());
  if (!file.Window().empty()) {
    reader.Take(file.Window());
    file.Take(file.Window().size());
  }
  reader.Finish();
}

}  // namespace veln
