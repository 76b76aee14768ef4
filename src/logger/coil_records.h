#pragma once

#include "logger/table_columns.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// Bytes of a record of a two-coil logger's file (.N38): 25 of content and a line feed. Contents may hold
/// line feeds themselves, so that such a file is read by steps and never by lines.
inline constexpr std::size_t CoilRecordBytes = 26;

/// Whether a file consists of such records, by its beginning.
bool IsCoilRecordFile(std::string_view beginning);

/// The columns that such a file offers: Latitude, Longitude, Time, Cond.long and Cond.short in mS/m, Line.
std::vector<TableColumn> CoilRecordColumns();

/// The two coils' readings in mS/m, long first, at a time.
struct CoilReading {
  double Milliseconds = 0;
  double Long = 0, Short = 0;
};

/// A position that a sentence of NMEA 0183 tells, at a time.
struct CoilFix {
  double Milliseconds = 0;
  double Latitude = 0, Longitude = 0;
};

/// Takes the records of a file one by one and keeps what those before tell: offsets, survey line, clock, and
/// the sentence in work.
class CoilRecords {
 public:
  enum class Kind { Header, Reading, Fix, Damaged };

  /// Takes the next record. A fix is complete with the record that ends its sentence.
  Kind Take(std::string_view record);
  [[nodiscard]] const CoilReading& Reading() const { return reading_; }
  [[nodiscard]] const CoilFix& PresentFix() const { return fix_; }
  /// The survey line in work, from 1; 0 before the first.
  [[nodiscard]] std::size_t Line() const { return line_; }
  /// Seconds from the logger's count of milliseconds to the time of day, once a clock record told it.
  [[nodiscard]] std::optional<double> ClockOffset() const { return clockOffset_; }
  /// The date as the header tells it: "16032018"; may be empty.
  [[nodiscard]] const std::string& Date() const { return date_; }

 private:
  Kind TakeReading(std::string_view record);
  Kind EndSentence(std::string_view record);
  void TakeHeader(std::string_view record);

  bool first_ = true;
  std::size_t line_ = 0;
  double longOffset_ = 0, shortOffset_ = 0;
  std::optional<double> clockOffset_;
  std::string date_;
  std::string sentence_;
  CoilReading reading_;
  CoilFix fix_;
};

}  // namespace veln
