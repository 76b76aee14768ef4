#include "logger/read_files.h"

#include "logger/grouped_number.h"
#include "logger/input_file.h"
#include "logger/reading_store.h"
#include "toolkit/number_text.h"
#include "toolkit/refusal.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>
#include <system_error>

namespace veln {

namespace {

constexpr double SecondsPerDay = 86'400;

/// A signal's label: its column's name, at most ten characters, without double quotes.
std::string LabelOf(const std::string& name)
{
  constexpr std::size_t LongestLabel = 10;
  std::string label = name;
  std::ranges::replace(label, '"', '\'');
  std::erase_if(label, [](unsigned char c) { return c < ' '; });
  while (CharacterCount(label) > LongestLabel) {
    label.pop_back();
    while (!label.empty() && !IsUtf8(label)) {
      label.pop_back();
    }
  }
  return label;
}

void TakeLabels(Readings& readings)
{
  const FileForm& form = readings.Files.front().Form;
  readings.SignalCount = static_cast<int>(form.Roles.SignalCount);
  for (std::size_t i = 0; i < form.Roles.SignalCount; ++i) {
    const TableColumn& column = form.Columns[form.Roles.Signals.at(i)];
    readings.Labels.at(i) = LabelOf(column.Name);
    readings.Units.at(i) = column.Unit;
  }
  if (readings.SignalCount == 2 && readings.Labels[0] == readings.Labels[1]) {
    readings.Labels = {"s1", "s2"};
  }
}

/// Files of one survey have the same kind of positions, as many signals, and the same units.
void RequireSameKind(const Readings& readings)
{
  const FileAccount& first = readings.Files.front();
  for (const FileAccount& file : readings.Files) {
    const auto refuse = [&](const char* what) {
      throw Refusal(file.Path.string() + " and " + first.Path.string() + what + "; convert them apart.");
    };
    if (file.Form.Roles.Geographic != first.Form.Roles.Geographic) {
      refuse(": one has latitude and longitude, the other x and y");
    }
    if (file.Form.Roles.SignalCount != first.Form.Roles.SignalCount) {
      refuse(" differ in the number of signals");
    }
    for (std::size_t i = 0; i < first.Form.Roles.SignalCount; ++i) {
      const auto unit = [i](const FileAccount& account) {
        return account.Form.Columns[account.Form.Roles.Signals.at(i)].Unit;
      };
      if (unit(file) != unit(first)) {
        refuse(" have signals in different units");
      }
    }
  }
}

void ReadOneFile(const std::filesystem::path& path, const ReadChoices& choices, Readings& readings,
                 ReadingStore& store)
{
  InputFile file(path);
  file.Extend();
  FileAccount& account = readings.Files.emplace_back();
  account.Path = path;
  account.Stream = file.IsStream();
  account.Form = RecogniseFile(file.Window(), path.string(), choices.Form, choices.Columns);
  account.FirstReading = readings.Lines.size();
  if (account.Form.Records) {
    ReadCoilRecords(file, account, readings, store);
  } else {
    ReadTable(file, account, readings, store);
  }
  account.Digest = file.Digest();
  for (const std::string& note : account.Form.Notes) {
    if (std::ranges::find(readings.Notes, note) == readings.Notes.end()) {
      readings.Notes.push_back(note);
    }
  }
  if (account.NulBytes > 0) {
    readings.Notes.push_back(path.string() + " holds " + GroupedNumber(account.NulBytes) +
                             " NUL bytes; they were read as blanks.");
  }
}

/// Day or month first: told, or judged by a part over 12 in any file, else day first.
DateOrder JudgeDates(Readings& readings, const ReadChoices& choices)
{
  constexpr int Months = 12;
  if (choices.Dates) {
    return *choices.Dates;
  }
  bool open = false;
  for (const FileAccount& file : readings.Files) {
    for (const DateParts& date : file.Dates) {
      if (date.Order) {
        continue;
      }
      if (date.Numbers[0] > Months) {
        return DateOrder::DayFirst;
      }
      if (date.Numbers[1] > Months) {
        return DateOrder::MonthFirst;
      }
      open = open || date.Numbers[0] != date.Numbers[1];
    }
  }
  if (open) {
    readings.Notes.emplace_back(
        "Dates could have the day or the month first; the day was taken (--dates mdy for the month).");
  }
  return DateOrder::DayFirst;
}

/// Puts seconds since 1970 in the place of date indexes. A time whose date is none is unknown.
void ResolveDates(Readings& readings, DateOrder order)
{
  std::vector<std::vector<double>> midnights;
  for (const FileAccount& file : readings.Files) {
    std::vector<double>& days = midnights.emplace_back();
    for (const DateParts& date : file.Dates) {
      const auto day = DayNumber(date, order);
      days.push_back(day ? *day * SecondsPerDay : std::numeric_limits<double>::quiet_NaN());
    }
  }
  const auto resolve = [&](double& time, std::uint16_t file) {
    if (readings.Files[file].HasDates && !std::isnan(time)) {
      const double index = std::floor(time / SecondsPerDateIndex);
      const double midnight = midnights[file].at(static_cast<std::size_t>(std::max(index, 0.0)));
      time = midnight + (time - index * SecondsPerDateIndex);
    }
  };
  for (TrackPoint& point : readings.Points) {
    resolve(point.Time, point.File);
  }
  for (Fix& fix : readings.Fixes) {
    resolve(fix.Time, fix.File);
  }
}

/// Moves the part of each file, in the order told, behind that of the file before it.
template <class Item>
void Rearrange(std::vector<Item>& items, std::span<const std::size_t> order)
{
  auto placed = items.begin();
  for (const std::size_t file : order) {
    const auto part =
        std::find_if(placed, items.end(), [file](const Item& item) { return item.File == file; });
    const auto behind =
        std::find_if(part, items.end(), [file](const Item& item) { return item.File != file; });
    placed = std::rotate(placed, part, behind);
  }
}

/// The first time of each file that has dates.
std::vector<double> FirstTimes(const Readings& readings)
{
  std::vector<double> times(readings.Files.size(), std::numeric_limits<double>::quiet_NaN());
  for (const TrackPoint& point : readings.Points) {
    if (readings.Files[point.File].HasDates && std::isnan(times[point.File])) {
      times[point.File] = point.Time;
    }
  }
  return times;
}

void OrderFiles(Readings& readings)
{
  const std::vector<double> times = FirstTimes(readings);
  if (times.size() < 2 || std::ranges::any_of(times, [](double time) { return std::isnan(time); })) {
    return;
  }
  std::vector<std::size_t> order(times.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&times](std::size_t file) { return times[file]; });
  if (std::ranges::is_sorted(order)) {
    return;
  }
  Rearrange(readings.Points, order);
  Rearrange(readings.Fixes, order);
  std::string names;
  for (const std::size_t file : order) {
    names += (names.empty() ? "" : ", ") + readings.Files[file].Path.string();
  }
  readings.Notes.push_back("Files are taken in the order of their first date and time: " + names + ".");
}

/// Receivers without a fix write 0° 0'. It is no position unless the survey lies there.
void DropZeroPositions(Readings& readings)
{
  constexpr double Near = 1;  // degree
  const auto isZero = [](const TrackPoint& point) { return point.X == 0 && point.Y == 0; };
  const bool there = std::ranges::any_of(readings.Points, [&](const TrackPoint& point) {
    return !isZero(point) && std::abs(point.X) < Near && std::abs(point.Y) < Near;
  });
  if (there) {
    return;
  }
  std::erase_if(readings.Points, [&](const TrackPoint& point) {
    if (isZero(point) && !readings.Files[point.File].Form.Records) {
      readings.Fates[point.First] = Fate::Missing;
      return true;
    }
    return false;
  });
}

void RefuseTwice(const std::vector<std::filesystem::path>& paths)
{
  for (std::size_t i = 0; i < paths.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      std::error_code failure;
      if (paths[i] == paths[k] || std::filesystem::equivalent(paths[i], paths[k], failure)) {
        throw Refusal(paths[i].string() + " is given twice.", RefusalKind::Usage);
      }
    }
  }
}

}  // namespace

Readings ReadLoggerFiles(const std::vector<std::filesystem::path>& paths, const ReadChoices& choices)
{
  RefuseTwice(paths);
  Readings readings;
  ReadingStore store(readings, choices.Every);
  for (const std::filesystem::path& path : paths) {
    ReadOneFile(path, choices, readings, store);
  }
  if (store.Full()) {
    const std::size_t every = (store.All() + MostReadings - 1) / MostReadings;
    throw Refusal("The files hold " + GroupedNumber(store.All()) + " readings; more than " +
                  GroupedNumber(MostReadings) + " are not kept at once. --every " +
                  GeneralForm(static_cast<double>(every)) + " takes as many as fit.");
  }
  RequireSameKind(readings);
  readings.Geographic = readings.Files.front().Form.Roles.Geographic;
  readings.RowColumn = readings.Files.front().Form.Roles.Row.has_value();
  TakeLabels(readings);
  ResolveDates(readings, JudgeDates(readings, choices));
  OrderFiles(readings);
  if (readings.Geographic) {
    DropZeroPositions(readings);
  }
  return readings;
}

}  // namespace veln
