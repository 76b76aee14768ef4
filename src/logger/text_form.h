#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace veln {

/// How a logger's text file is written.
struct TextForm {
  char Separator = ',';  ///< a tab, ';', ',' or `BlankRuns`
  bool DecimalComma = false;
  bool ByteOrderMark = false;
  bool Latin1 = false;  ///< not UTF-8
  bool Quotes = true;
  bool CarriageReturns = false;  ///< lines end at CR alone
  bool CrLf = false;             ///< lines end at CR LF
  std::string Comments;          ///< the beginnings of comment lines, apart by blanks
  std::size_t HeaderLine = 0;    ///< from 1; 0: the file has none
  std::size_t FirstDataLine = 1;
  std::string Header;  ///< the header line as it stands

  bool operator==(const TextForm&) const = default;
};

/// What the user tells of the form; the rest is recognised.
struct FormChoices {
  std::optional<char> Separator;
  std::optional<bool> DecimalComma, Latin1, Quotes, CarriageReturns;
  std::optional<std::string> Comments;
  std::optional<std::size_t> HeaderLine;  ///< 0: none
  std::optional<std::size_t> SkippedLines;

  bool operator==(const FormChoices&) const = default;
};

/// Recognises the form of a file by its first lines. The separator is the one that makes the most numbers of
/// them; the first line of data is the first with at least half as many numbers as lines have in the middle;
/// a line of names right before it is the header.
TextForm RecogniseTextForm(std::string_view beginning, const FormChoices& choices);

/// Whether a line is a comment of this form.
bool IsComment(std::string_view line, std::string_view comments);

/// Whether a line holds nothing but blanks, tabs and NUL bytes.
bool IsBlankLine(std::string_view line);

/// The form in words: "tab-separated, header in line 1, decimal point, UTF-8, LF".
std::string DescribeForm(const TextForm& form);

}  // namespace veln
