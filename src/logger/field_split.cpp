#include "logger/field_split.h"

#include "toolkit/number_text.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace veln {

namespace {

bool IsBlank(char c)
{
  return c == ' ' || c == '\t' || c == '\0' || c == '\r';
}

/// Takes a field that begins with a quote off the line; two quotes in a row stand for one in it.
std::string_view TakeQuoted(std::string_view& line)
{
  std::size_t end = 1;
  for (;; end += 2) {
    end = std::min(line.find('"', end), line.size());
    if (line.substr(end, 2) != "\"\"") {
      break;
    }
  }
  const std::string_view field = line.substr(1, end - 1);
  line.remove_prefix(std::min(end + 1, line.size()));
  return field;
}

void SkipBlanks(std::string_view& text)
{
  while (!text.empty() && IsBlank(text.front())) {
    text.remove_prefix(1);
  }
}

void SplitAtBlanks(std::string_view line, bool quotes, std::vector<std::string_view>& fields,
                   std::size_t most)
{
  SkipBlanks(line);
  while (!line.empty() && fields.size() < most) {
    if (quotes && line.front() == '"') {
      fields.push_back(TakeQuoted(line));
    } else {
      const auto* const end = std::ranges::find_if(line, IsBlank);
      const auto length = static_cast<std::size_t>(end - line.begin());
      fields.push_back(line.substr(0, length));
      line.remove_prefix(length);
    }
    SkipBlanks(line);
  }
}

}  // namespace

std::string_view TrimField(std::string_view text)
{
  SkipBlanks(text);
  while (!text.empty() && IsBlank(text.back())) {
    text.remove_suffix(1);
  }
  return text;
}

void SplitFields(std::string_view line, char separator, bool quotes, std::vector<std::string_view>& fields,
                 std::size_t most)
{
  fields.clear();
  if (separator == BlankRuns) {
    SplitAtBlanks(line, quotes, fields, most);
    return;
  }
  while (fields.size() < most) {
    if (quotes && !line.empty() && (line.front() == '"' || line.front() == ' ')) {
      std::string_view start = line;
      SkipBlanks(start);
      if (!start.empty() && start.front() == '"') {
        line = start;
        const std::string_view field = TakeQuoted(line);
        fields.push_back(TrimField(field));
        const std::size_t next = line.find(separator);
        if (next == std::string_view::npos) {
          return;
        }
        line.remove_prefix(next + 1);
        continue;
      }
    }
    const void* const found = line.empty() ? nullptr : std::memchr(line.data(), separator, line.size());
    if (found == nullptr) {
      fields.push_back(TrimField(line));
      return;
    }
    const auto length = static_cast<std::size_t>(static_cast<const char*>(found) - line.data());
    fields.push_back(TrimField(line.substr(0, length)));
    line.remove_prefix(length + 1);
  }
}

std::optional<double> ParseField(std::string_view text, bool decimalComma)
{
  constexpr std::size_t LongestNumber = 64;
  const std::size_t comma = decimalComma ? text.find(',') : std::string_view::npos;
  if (comma == std::string_view::npos) {
    return ParseNumber(text);
  }
  if (text.size() > LongestNumber) {
    return std::nullopt;
  }
  std::array<char, LongestNumber> copy{};
  std::ranges::copy(text, copy.begin());
  copy.at(comma) = '.';
  return ParseNumber({copy.data(), text.size()});
}

std::string FieldText(std::string_view text, bool latin1)
{
  constexpr unsigned char FirstBeyondAscii = 0x80;
  constexpr char32_t Replacement = 0xFFFD;
  if (!latin1 && IsUtf8(text)) {
    return std::string(text);
  }
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < FirstBeyondAscii) {
      result += c;
    } else {
      AppendUtf8(result, latin1 ? byte : Replacement);
    }
  }
  return result;
}

}  // namespace veln
