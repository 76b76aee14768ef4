#include "toolkit/rtf_tokens.h"

#include "toolkit/refusal.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <system_error>

namespace veln {

namespace {

bool IsLetter(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsDigit(char c)
{
  return c >= '0' && c <= '9';
}

/// RTF is 7-bit text: anything else is another kind of file, or a spoilt one.
void RequireText(char c)
{
  const auto byte = static_cast<unsigned char>(c);
  if ((byte < 0x20 && c != '\t') || byte > 0x7E) {
    RefuseRichText("it holds a byte that is no text");
  }
}

}  // namespace

void RefuseRichText(const char* cause)
{
  throw Refusal(std::string("The rich text document is damaged: ") + cause + ".");
}

std::optional<RtfToken> RtfTokens::Next()
{
  rest_.remove_prefix(std::min(rest_.find_first_not_of("\r\n"), rest_.size()));
  if (rest_.empty()) {
    return std::nullopt;
  }
  const char c = rest_.front();
  RequireText(c);
  rest_.remove_prefix(1);
  switch (c) {
    case '{':
      return RtfToken{RtfToken::Type::GroupStart, {}, {}, c};
    case '}':
      return RtfToken{RtfToken::Type::GroupEnd, {}, {}, c};
    case '\\':
      return TakeEscape();
    default:
      return RtfToken{RtfToken::Type::Byte, {}, {}, c};
  }
}

RtfToken RtfTokens::TakeEscape()
{
  if (rest_.empty()) {
    RefuseRichText("it ends within an escape");
  }
  const char c = rest_.front();
  if (IsLetter(c)) {
    return TakeWord();
  }
  rest_.remove_prefix(1);
  if (c == '\'') {
    return TakeHexByte();
  }
  if (c == '\r' || c == '\n') {
    return {RtfToken::Type::Word, "par", {}, 0};
  }
  RequireText(c);
  return {RtfToken::Type::Symbol, {}, {}, c};
}

RtfToken RtfTokens::TakeWord()
{
  constexpr std::size_t LongestWord = 32;
  const auto* const end = std::ranges::find_if_not(rest_, IsLetter);
  RtfToken token{RtfToken::Type::Word, rest_.substr(0, static_cast<std::size_t>(end - rest_.begin())), {}, 0};
  if (token.Word.size() > LongestWord) {
    RefuseRichText("it holds an overlong word");
  }
  rest_.remove_prefix(token.Word.size());
  token.Number = TakeNumber();
  if (rest_.starts_with(' ')) {
    rest_.remove_prefix(1);
  }
  if (token.Word == "bin") {
    const int length = token.Number.value_or(0);
    if (length < 0 || static_cast<std::size_t>(length) > rest_.size()) {
      RefuseRichText("it ends within its data");
    }
    rest_.remove_prefix(static_cast<std::size_t>(length));
  }
  return token;
}

std::optional<int> RtfTokens::TakeNumber()
{
  const std::size_t sign = rest_.starts_with('-') ? 1 : 0;
  if (rest_.size() <= sign || !IsDigit(rest_[sign])) {
    return std::nullopt;
  }
  int number = 0;
  const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), number);
  if (error != std::errc()) {
    RefuseRichText("it holds a number out of range");
  }
  rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
  return number;
}

RtfToken RtfTokens::TakeHexByte()
{
  constexpr std::size_t Digits = 2;
  constexpr int Hexadecimal = 16;
  const std::string_view digits = rest_.substr(0, Digits);
  unsigned value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, Hexadecimal);
  if (error != std::errc() || end != digits.data() + Digits) {
    RefuseRichText("it holds an escape without its two digits");
  }
  rest_.remove_prefix(Digits);
  return {RtfToken::Type::Byte, {}, {}, static_cast<char>(value)};
}

}  // namespace veln
