#pragma once

#include "support/files.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace veln {

/// The lines of a text, whatever ends them.
inline std::vector<std::string> SplitLines(const std::string& text)
{
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) {
      line.pop_back();
    }
    lines.push_back(line);
  }
  return lines;
}

/// The words of a line, split at blanks; double quotes hold together, and \n, \r, \t, \q (a double quote) and
/// \xHH stand for one byte.
inline std::vector<std::string> WordsOf(const std::string& line)
{
  const std::string letters = "nrtq";
  const std::string bytes = "\n\r\t\"";
  std::vector<std::string> words;
  bool quoted = false;
  bool begun = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == ' ' && !quoted) {
      begun = false;
      continue;
    }
    if (!begun) {
      words.emplace_back();
      begun = true;
    }
    if (line[i] == '"') {
      quoted = !quoted;
    } else if (line[i] != '\\') {
      words.back() += line[i];
    } else if (line.at(++i) == 'x') {
      words.back() += static_cast<char>(std::stoi(line.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      words.back() += bytes.at(letters.find(line[i]));
    }
  }
  return words;
}

/// A case of a table: its first line and what stands below it, up to a blank line.
struct TableCase {
  std::string Place;  ///< "usage.txt:12: " and the first line
  std::string Head;
  std::vector<std::string> Lines;
};

/// The cases of a file of the test's data; lines that begin with "# " are comments.
inline std::vector<TableCase> ReadTable(const std::filesystem::path& file)
{
  std::vector<TableCase> table;
  bool open = false;
  int number = 0;
  for (const std::string& line : SplitLines(ReadText(file))) {
    ++number;
    if (line.starts_with("# ")) {
      continue;
    }
    if (open && !line.empty()) {
      table.back().Lines.push_back(line);
    } else if (!line.empty()) {
      table.push_back({file.filename().string() + ":" + std::to_string(number) + ": " + line, line, {}});
    }
    open = !line.empty();
  }
  EXPECT_GT(table.size(), 1U) << file;
  return table;
}

/// The rows of a file of the test's data, each line of it a row of words; comments as above.
inline std::vector<std::vector<std::string>> ReadRows(const std::filesystem::path& file)
{
  std::vector<std::vector<std::string>> rows;
  for (const std::string& line : SplitLines(ReadText(file))) {
    if (!line.empty() && !line.starts_with("# ")) {
      rows.push_back(WordsOf(line));
    }
  }
  EXPECT_GT(rows.size(), 1U) << file;
  return rows;
}

}  // namespace veln
