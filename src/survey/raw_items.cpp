#include "survey/raw_items.h"

#include <algorithm>

namespace veln {

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::string_view BlanksAndLineEnds = " \t\r\n";

void SkipAny(std::string_view& text, std::string_view characters)
{
  text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

}  // namespace

std::string_view SkipByteOrderMark(std::string_view content)
{
  constexpr std::string_view Mark = "\xEF\xBB\xBF";
  return content.starts_with(Mark) ? content.substr(Mark.size()) : content;
}

void LineCounter::Take(std::string_view block)
{
  if (block.empty()) {
    return;
  }
  ends_ -= afterReturn_ && block.front() == '\n' ? 1 : 0;
  for (std::size_t at = 0; (at = block.find('\n', at)) != std::string_view::npos; ++at) {
    ++ends_;
  }
  for (std::size_t at = 0; (at = block.find('\r', at)) != std::string_view::npos; ++at) {
    ends_ += block.substr(at + 1, 1) == "\n" ? 0 : 1;
  }
  afterReturn_ = block.back() == '\r';
  open_ = !afterReturn_ && block.back() != '\n';
}

std::size_t CountLines(std::string_view content)
{
  LineCounter lines;
  lines.Take(content);
  return lines.Count();
}

bool RawItems::AtEnd()
{
  SkipAny(rest_, BlanksAndLineEnds);
  return rest_.empty();
}

std::optional<std::string_view> RawItems::Next()
{
  if (AtEnd()) {
    return std::nullopt;
  }
  std::string_view item;
  if (rest_.front() == '"') {
    rest_.remove_prefix(1);
    item = rest_.substr(0, rest_.find('"'));
    rest_.remove_prefix(std::min(item.size() + 1, rest_.size()));
  } else {
    item = rest_.substr(0, rest_.find_first_of(ItemEnds));
    rest_.remove_prefix(item.size());
  }
  SkipAny(rest_, Blanks);
  if (!rest_.empty() && rest_.front() == ',') {
    rest_.remove_prefix(1);
  }
  return item;
}

}  // namespace veln
