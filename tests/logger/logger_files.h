#pragma once

#include "logger/conversion.h"
#include "support/files.h"
#include "support/surveys.h"
#include "support/temporary_directory.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace veln {

/// A line of a made-up logger's file: position in packed minutes, a clock, two conductivities.
inline std::string LoggerLine(double metresEast, double metresNorth, int second, double signal)
{
  // Near 52° 30' north: a thousandth of a minute is 1.855 m northward and 1.130 m eastward.
  char line[128];
  std::snprintf(line, sizeof line, "52%09.6fN\t001%09.6fW\t%02d:%02d:%02d.00\t%.2f\t%.2f\n",
                30 + metresNorth / 1854.6, 15 - metresEast / 1131.0, 9 + second / 3600, second / 60 % 60,
                second % 60, signal, signal / 2 + second * 5 % 11);
  return line;
}

inline constexpr const char* LoggerHeader = "Latitude\tLongitude\tTime\tCond.1[mS/m]\tCond.2[mS/m]\n";

/// Rows to and fro, a reading a second and a metre, `apart` metres between them.
inline std::string LoggerText(int rows, int metres, int apart = 8)
{
  std::string text = LoggerHeader;
  int second = 0;
  for (int row = 0; row < rows; ++row) {
    for (int i = 0; i <= metres; ++i, ++second) {
      text += LoggerLine(row % 2 == 0 ? i : metres - i, row * apart, second, 20 + second % 7);
    }
    for (int i = 1; i < apart; ++i, ++second) {
      text += LoggerLine(row % 2 == 0 ? metres : 0, row * apart + i, second, 20 + second % 7);
    }
  }
  return text;
}

/// Files in a directory of their own, converted.
class LoggerFiles {
 public:
  std::filesystem::path Write(const std::string& name, const std::string& content)
  {
    WriteText(directory_ / name, content);
    paths_.push_back(directory_ / name);
    return paths_.back();
  }
  Conversion Converted(const ConversionOptions& options = {}) const
  {
    return Convert(ReadLoggerFiles(paths_, options.Reading), options);
  }
  [[nodiscard]] const std::filesystem::path& Folder() const { return directory_.Path(); }

 private:
  TemporaryDirectory directory_;
  std::vector<std::filesystem::path> paths_;
};

/// The lines of a text that ends with a line end.
inline std::size_t CountedLines(const std::string& text)
{
  return static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

/// Lines read less all that they became: 0 where every line is accounted for.
inline long Unaccounted(const LineAccount& account)
{
  return static_cast<long>(account.Lines) -
         static_cast<long>(account.Sites() + account.Joined() + account.Dropped() + account.Header +
                           account.Comments + account.Blank);
}

}  // namespace veln
