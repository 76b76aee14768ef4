#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace veln {

/// What ends an item.
inline constexpr std::string_view ItemEnds = ", \t\r\n";

/// The content of a raw file without a leading UTF-8 byte order mark.
std::string_view SkipByteOrderMark(std::string_view content);

/// Counts the lines of a text that comes in blocks, as `CountLines` does.
class LineCounter {
 public:
  void Take(std::string_view block);
  [[nodiscard]] std::size_t Count() const { return ends_ + (open_ ? 1 : 0); }

 private:
  std::size_t ends_ = 0;
  bool afterReturn_ = false;  // a line feed that comes next belongs to that end
  bool open_ = false;         // the last line has no end yet
};

/// The number of lines, whatever they hold. Lines end at CR LF, LF or CR; a last line without an end counts,
/// the empty rest behind a final line end does not.
std::size_t CountLines(std::string_view content);

/// Takes the items of a raw survey file one by one off its character stream. An item ends at a comma, at
/// blanks, tabs or a line end; a line end has no other meaning. A comma behind an item on its line belongs to
/// that item; a comma that comes first on its line or behind another comma is an empty item. An item that
/// begins with a double quote runs to the next one and is taken without them.
class RawItems {
 public:
  /// `content` must outlive the reader.
  explicit RawItems(std::string_view content) : rest_(content) {}

  /// Whether only blanks, tabs and line ends are left.
  bool AtEnd();
  /// The next item; empty at the end of the file.
  std::optional<std::string_view> Next();

 private:
  std::string_view rest_;
};

}  // namespace veln
