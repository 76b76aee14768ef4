#pragma once

#include "geodesy/angle_text.h"
#include "logger/clock_text.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// A column of a logger's table.
struct TableColumn {
  std::string Name;                 ///< without its unit; "column 5" where the header tells none
  std::string Unit;                 ///< what stands in brackets behind the name; may be empty
  std::vector<std::string> Sample;  ///< the first values, with decimal points
  bool Numeric = false;             ///< most of them are numbers

  bool operator==(const TableColumn&) const = default;
};

/// Columns as the user names them: by header name, by its beginning, or by number from 1.
struct ColumnChoices {
  std::optional<std::string> X, Y, Lat, Lon, S1, S2, Row, Time, Id;
  std::string Profile;  ///< the profile that some of them come from; for messages

  bool operator==(const ColumnChoices&) const = default;
};

/// What the columns of a file are to the survey, as indexes from 0.
struct ColumnRoles {
  bool Geographic = false;  ///< `First` is latitude and `Second` longitude; otherwise x and y
  std::size_t First = 0, Second = 0;
  std::array<std::size_t, 2> Signals{};
  std::size_t SignalCount = 0;
  std::optional<std::size_t> Row, Time, Date, Id;
  AngleForm Angles = AngleForm::Degrees;
  ClockStyle Clock = ClockStyle::None;

  bool operator==(const ColumnRoles&) const = default;
};

/// Splits a header cell into name and unit: "Cond.1[mS/m]" is Cond.1 in mS/m.
TableColumn ReadHeaderCell(const std::string& cell, std::size_t index);

/// The column that a user's text names. An exact name wins (case ignored, without its unit), then a beginning
/// that only one column has; a whole number is a column's number unless a header has that very name. Throws
/// Refusal with the columns that fit; `option` and `file` are for its words.
std::size_t FindColumn(const std::vector<TableColumn>& columns, const std::string& text,
                       const std::string& option, const std::string& file);

/// Gives columns their roles: those that the user names, the rest by known names and by their values. What is
/// worth telling is added to `notes`. Throws Refusal where positions or signals can't be told.
ColumnRoles AssignColumns(const std::vector<TableColumn>& columns, const ColumnChoices& choices,
                          const std::string& file, std::vector<std::string>& notes);

/// Column names joined by commas, in quotes.
std::string QuotedNames(const std::vector<TableColumn>& columns);

}  // namespace veln
