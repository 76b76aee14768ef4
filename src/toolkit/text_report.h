#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veln {

/// A text file composed in memory, by the layout rules that all output files share: lines end in CR LF,
/// columns count characters from 1, and an item whose column the line has already passed goes to that column
/// of the next line.
class TextReport {
 public:
  /// Puts text at the present position, unchanged.
  TextReport& Text(std::string_view text);
  /// Fills with blanks up to `column`, on a new line if this one has passed it. A column below 1 counts as 1.
  TextReport& At(int column);
  /// Fills with blanks up to the next print zone; zones are 14 columns wide (1, 15, 29, ...).
  TextReport& NextZone();
  /// Puts a number as files show it: a blank or minus sign, the general form, a trailing blank.
  TextReport& Number(double value);
  /// Puts a number that first passes through a format pattern, which only bounds its decimals.
  TextReport& Number(double value, std::string_view pattern);
  /// Ends the line.
  TextReport& EndLine();
  /// Puts text and ends the line.
  TextReport& Line(std::string_view text);
  /// Puts `count` lines of exactly three blanks each.
  TextReport& BlankLines(int count = 1);

  /// The file's content so far.
  [[nodiscard]] const std::string& Content() const { return content_; }

 private:
  std::string content_;
  std::size_t lineLength_ = 0;  // characters on the present line
};

}  // namespace veln
