#pragma once

#include "geodesy/coordinate_system.h"
#include "logger/clock_text.h"
#include "logger/file_form.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// What became of a line of readings.
enum class Fate : std::uint8_t {
  Site,     ///< the first reading of a site
  Repeat,   ///< joined to the site that it stands on
  Thinned,  ///< joined by thinning
  Missing,  ///< from here on dropped: no position or reading in it
  OutOfRange,
  NoPosition,  ///< outside the fixes of its survey line
  Jump,
  NoLag,  ///< nothing is known of where the sensor was so long before
  Outside,
  Excluded,
  NonPositive,
  Turn,
};
inline constexpr std::size_t FateCount = 12;

/// What the report calls a fate: "joined: same place", "dropped: turn".
std::string_view FateText(Fate fate);
/// Whether a line of this fate was dropped, rather than become a site or joined one.
constexpr bool IsDropped(Fate fate)
{
  return fate >= Fate::Missing;
}

/// A place on the track with its readings: one reading at first, a site with the mean of several later.
struct TrackPoint {
  double X = 0, Y = 0;  ///< longitude and latitude until they are projected, then metres
  std::array<double, 2> Signals{};
  double Time = std::numeric_limits<double>::quiet_NaN();  ///< seconds of the first reading; NaN: unknown
  std::uint32_t First = 0, Last = 0;  ///< first and last reading, as index of `Readings::Fates`
  float Dwell = 0;                    ///< seconds from the first reading to the last
  std::uint16_t Row = 0;   ///< from 1; 0: none. While reading: the run of the row column or the survey line
  std::uint16_t File = 0;  ///< index of `Readings::Files`
};

/// A position fix of a record file, whose readings come between fixes.
struct Fix {
  double Time = 0, X = 0, Y = 0;
  std::uint16_t Line = 0;
  std::uint16_t File = 0;
};

/// A file as read.
struct FileAccount {
  std::filesystem::path Path;
  std::string Digest;  ///< SHA-256
  FileForm Form;
  bool Stream = false;    ///< a pipe, which can not be read a second time
  std::size_t Lines = 0;  ///< records of 26 bytes in a record file
  std::size_t Header = 0, Comments = 0, Blank = 0;
  std::size_t NotEveryNth = 0;                     ///< lines that `--every` left out
  std::size_t FirstReading = 0, ReadingCount = 0;  ///< its part of `Readings::Fates`
  std::size_t NulBytes = 0;
  std::vector<DateParts> Dates;  ///< in the order met; a time tells its date by index
  std::string FirstFault;        ///< where and why the first line without position or reading is that
  bool HasDates = false, HasClock = false;
};

/// Texts one behind the other in one store.
struct TextPool {
  std::string Text;
  std::vector<std::uint32_t> Ends;

  void Add(std::string_view text)
  {
    Text += text;
    Ends.push_back(static_cast<std::uint32_t>(Text.size()));
  }
  [[nodiscard]] std::string_view At(std::size_t index) const
  {
    const std::size_t begin = index == 0 ? 0 : Ends[index - 1];
    return std::string_view(Text).substr(begin, Ends[index] - begin);
  }
};

/// All readings of one or more files, along the track, and the account of every line.
struct Readings {
  std::vector<FileAccount> Files;
  std::vector<TrackPoint> Points;
  std::vector<Fix> Fixes;            ///< of record files
  std::vector<std::uint32_t> Lines;  ///< for each reading its line in its file
  std::vector<Fate> Fates;           ///< for each reading what became of it
  TextPool Ids;                      ///< for each reading its ID, where a column was told; else empty
  std::vector<std::string> Notes;
  bool Geographic = false;  ///< `Points` hold longitude and latitude
  int SignalCount = 0;
  std::array<std::string, 2> Labels;
  std::array<std::string, 2> Units;  ///< as the header tells them
  bool RowColumn = false;            ///< `Row` numbers the runs of a column
};

}  // namespace veln
