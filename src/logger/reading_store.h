#pragma once

#include "logger/read_files.h"

#include <cstddef>
#include <string_view>

namespace veln {

/// A moment of a file before its dates are understood: the index of the date, and seconds of its day.
inline constexpr double SecondsPerDateIndex = 1E6;

/// Takes the readings of files in work: counts them, leaves out what `--every` leaves out, and keeps the rest
/// while there is room.
class ReadingStore {
 public:
  ReadingStore(Readings& readings, std::size_t every) : readings_(readings), every_(every) {}

  /// Whether the next line of data is to be read; one that is not is counted as left out.
  bool Wants(FileAccount& account)
  {
    const bool wanted = (account.ReadingCount + account.NotEveryNth) % every_ == 0;
    ++all_;
    if (!wanted) {
      ++account.NotEveryNth;
      return false;
    }
    ++account.ReadingCount;
    if (full_ || readings_.Lines.size() == MostReadings) {
      full_ = true;
      return false;
    }
    return true;
  }

  /// A wanted line that makes no point of the track.
  void Drop(std::size_t line, Fate fate)
  {
    readings_.Lines.push_back(static_cast<std::uint32_t>(line));
    readings_.Fates.push_back(fate);
  }

  /// A wanted line that does.
  void Keep(std::size_t line, TrackPoint point)
  {
    point.First = static_cast<std::uint32_t>(readings_.Lines.size());
    point.Last = point.First;
    readings_.Points.push_back(point);
    Drop(line, Fate::Site);
  }

  /// Whether more readings came than there is room for.
  [[nodiscard]] bool Full() const { return full_; }
  /// All lines of data so far, those left out among them.
  [[nodiscard]] std::size_t All() const { return all_; }

 private:
  Readings& readings_;
  std::size_t every_;
  std::size_t all_ = 0;
  bool full_ = false;
};

/// Whether both coordinates can be a position: degrees in their range, or metres below a hundred million.
bool IsPosition(double x, double y, bool geographic);

/// Whether a reading is a number that statistics can work with.
bool IsReading(double value);

class InputFile;

/// Reads the lines of a text file into the store; `file` stands at its beginning.
void ReadTable(InputFile& file, FileAccount& account, Readings& readings, ReadingStore& store);

/// Reads the records of a two-coil logger's file into the store. Readings have no places yet; the fixes
/// between which they come are added to `readings`.
void ReadCoilRecords(InputFile& file, FileAccount& account, Readings& readings, ReadingStore& store);

}  // namespace veln
