#include "logger/field_split.h"
#include "logger/input_file.h"
#include "logger/reading_store.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <optional>
#include <string>

namespace veln {

namespace {

constexpr double SecondsPerDay = 86'400;

/// Tells the times of one file, line by line.
class ClockReader {
 public:
  ClockReader(const FileForm& form, FileAccount& account)
      : style_(form.Roles.Clock), dateColumn_(form.Roles.Date), account_(account)
  {
  }

  /// The moment of a line: seconds of its date by index, or since the first midnight. NaN where it tells
  /// none.
  double Read(std::string_view time, std::string_view date)
  {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const auto clock = ParseClock(time, style_);
    if (!clock) {
      return none;
    }
    account_.HasClock = true;
    if (dateColumn_ || clock->Date) {
      if (!TakeDate(dateColumn_ ? date : time, clock->Date)) {
        return none;
      }
      return static_cast<double>(account_.Dates.size() - 1) * SecondsPerDateIndex + clock->Seconds;
    }
    const bool daily = style_ == ClockStyle::TimeOfDay || style_ == ClockStyle::PackedClock;
    if (daily && clock->Seconds < lastSeconds_ - SecondsPerDay / 2) {
      midnights_ += SecondsPerDay;
    }
    lastSeconds_ = clock->Seconds;
    return midnights_ + clock->Seconds;
  }

 private:
  bool TakeDate(std::string_view text, const std::optional<DateParts>& within)
  {
    if (!within && text == lastDate_ && !account_.Dates.empty()) {
      return true;
    }
    const auto date = within ? within : ParseDate(text);
    if (!date) {
      return false;
    }
    lastDate_ = text;
    if (account_.Dates.empty() || account_.Dates.back() != *date) {
      account_.Dates.push_back(*date);
    }
    account_.HasDates = true;
    return true;
  }

  ClockStyle style_;
  std::optional<std::size_t> dateColumn_;
  FileAccount& account_;
  std::string lastDate_;
  double lastSeconds_ = -SecondsPerDay;
  double midnights_ = 0;
};

/// Reads the lines of one text file.
class TableReader {
 public:
  TableReader(InputFile& file, FileAccount& account, Readings& readings, ReadingStore& store)
      : file_(file),
        account_(account),
        form_(account.Form.Text),
        roles_(account.Form.Roles),
        readings_(readings),
        store_(store),
        clock_(account.Form, account)
  {
    needed_ =
        std::max({roles_.First, roles_.Second, roles_.Signals[0], roles_.Signals[1], roles_.Row.value_or(0),
                  roles_.Time.value_or(0), roles_.Date.value_or(0), roles_.Id.value_or(0)}) +
        1;
    row_ = readings.Points.empty() ? std::uint16_t{0} : readings.Points.back().Row;
  }

  void Read()
  {
    LineReader lines(file_, form_.CarriageReturns);
    std::string_view line;
    constexpr std::size_t MarkBytes = 3;
    while (lines.Next(line)) {
      if (lines.Number() == 1 && form_.ByteOrderMark) {
        line.remove_prefix(std::min(MarkBytes, line.size()));
      }
      ReadLine(line, lines.Number());
    }
    account_.Lines = lines.Number();
  }

 private:
  void ReadLine(std::string_view line, std::size_t number)
  {
    if (std::memchr(line.data(), 0, line.size()) != nullptr) {
      account_.NulBytes += static_cast<std::size_t>(std::ranges::count(line, '\0'));
    }
    const bool heading = number == form_.HeaderLine;
    if (!heading && IsBlankLine(line)) {
      ++account_.Blank;
    } else if (!heading && IsComment(line, form_.Comments)) {
      ++account_.Comments;
    } else if (heading || number < form_.FirstDataLine || (form_.HeaderLine > 0 && line == form_.Header)) {
      ++account_.Header;
    } else if (store_.Wants(account_)) {
      ReadReading(line, number);
    }
  }

  void ReadReading(std::string_view line, std::size_t number)
  {
    SplitFields(line, form_.Separator, form_.Quotes, fields_, needed_);
    if (roles_.Id) {
      readings_.Ids.Add(FieldText(Field(*roles_.Id), form_.Latin1));
    }
    TrackPoint point;
    if (!ReadPlace(point, number) || !ReadSignals(point, number)) {
      RefuseOtherHeader(line, number);
      store_.Drop(number, Fate::Missing);
      return;
    }
    if (!IsPosition(point.X, point.Y, roles_.Geographic)) {
      store_.Drop(number, Fate::OutOfRange);
      return;
    }
    if (roles_.Time) {
      point.Time = clock_.Read(Field(*roles_.Time), roles_.Date ? Field(*roles_.Date) : std::string_view());
    }
    point.Row = roles_.Row ? RowOf(Field(*roles_.Row)) : std::uint16_t{0};
    point.File = static_cast<std::uint16_t>(readings_.Files.size() - 1);
    store_.Keep(number, point);
  }

  [[nodiscard]] std::string_view Field(std::size_t column) const
  {
    return column < fields_.size() ? fields_[column] : std::string_view();
  }

  bool ReadPlace(TrackPoint& point, std::size_t number)
  {
    if (!roles_.Geographic) {
      return ReadNumber(roles_.First, number, point.X) && ReadNumber(roles_.Second, number, point.Y);
    }
    return ReadAngle(roles_.First, AngleAxis::Latitude, number, point.Y) &&
           ReadAngle(roles_.Second, AngleAxis::Longitude, number, point.X);
  }

  bool ReadAngle(std::size_t column, AngleAxis axis, std::size_t number, double& value)
  {
    std::string_view text = Field(column);
    if (form_.DecimalComma && text.find(',') != std::string_view::npos) {
      pointed_ = text;
      std::ranges::replace(pointed_, ',', '.');
      text = pointed_;
    }
    const auto angle = ParseAngle(text, axis, roles_.Angles);
    if (!angle) {
      return Fault(column, number, "is no position");
    }
    value = *angle;
    return true;
  }

  bool ReadSignals(TrackPoint& point, std::size_t number)
  {
    for (std::size_t i = 0; i < roles_.SignalCount; ++i) {
      if (!ReadNumber(roles_.Signals.at(i), number, point.Signals.at(i))) {
        return false;
      }
      if (!IsReading(point.Signals.at(i))) {
        return Fault(roles_.Signals.at(i), number, "is too large a number");
      }
    }
    return true;
  }

  bool ReadNumber(std::size_t column, std::size_t number, double& value)
  {
    const auto read = ParseField(Field(column), form_.DecimalComma);
    if (!read) {
      return Fault(column, number, "is not a number");
    }
    value = *read;
    return true;
  }

  /// Keeps the place of the first line that gives no reading.
  bool Fault(std::size_t column, std::size_t number, const char* what)
  {
    if (account_.FirstFault.empty()) {
      constexpr std::size_t MostShown = 40;
      account_.FirstFault = account_.Path.string() + ", line " + GeneralForm(static_cast<double>(number)) +
                            ", column \"" + account_.Form.Columns.at(column).Name + "\": \"" +
                            FieldText(Field(column).substr(0, MostShown), form_.Latin1) + "\" " + what;
    }
    return false;
  }

  /// A logger that starts again may write another header; what stands below it would go astray.
  void RefuseOtherHeader(std::string_view line, std::size_t number)
  {
    const auto& columns = account_.Form.Columns;
    if (form_.HeaderLine == 0 || Field(roles_.Signals[0]).empty() ||
        ParseField(Field(roles_.Signals[0]), form_.DecimalComma)) {
      return;
    }
    std::vector<std::string_view> cells;
    SplitFields(line, form_.Separator, form_.Quotes, cells);
    const auto isElsewhere = [&](std::size_t column) {
      return std::ranges::any_of(cells, [&](std::string_view cell) {
        return ReadHeaderCell(FieldText(cell, form_.Latin1), 0).Name == columns[column].Name;
      });
    };
    if (isElsewhere(roles_.First) && isElsewhere(roles_.Second) && isElsewhere(roles_.Signals[0])) {
      throw Refusal(
          account_.Path.string() + ", line " + GeneralForm(static_cast<double>(number)) +
          ": another header begins here, with its columns in other places; cut the file before this line and "
          "give both parts.");
    }
  }

  /// Rows are the runs of equal values; an empty one belongs to none.
  std::uint16_t RowOf(std::string_view text)
  {
    if (text.empty()) {
      return 0;
    }
    if (text != lastRow_) {
      lastRow_ = text;
      row_ = static_cast<std::uint16_t>(std::min<int>(row_ + 1, std::numeric_limits<std::uint16_t>::max()));
    }
    return row_;
  }

  InputFile& file_;
  FileAccount& account_;
  const TextForm& form_;
  const ColumnRoles& roles_;
  Readings& readings_;
  ReadingStore& store_;
  ClockReader clock_;
  std::size_t needed_ = 0;
  std::vector<std::string_view> fields_;
  std::string pointed_;
  std::string lastRow_;
  std::uint16_t row_ = 0;
};

}  // namespace

bool IsPosition(double x, double y, bool geographic)
{
  constexpr double MostMetres = 1E8;
  if (geographic) {
    return IsInRange(x, AngleAxis::Longitude) && IsInRange(y, AngleAxis::Latitude);
  }
  return std::abs(x) < MostMetres && std::abs(y) < MostMetres;
}

bool IsReading(double value)
{
  constexpr double Most = 1E30;
  return std::abs(value) < Most;
}

void ReadTable(InputFile& file, FileAccount& account, Readings& readings, ReadingStore& store)
{
  TableReader(file, account, readings, store).Read();
}

}  // namespace veln
