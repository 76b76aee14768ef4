#include "toolkit/utf8.h"

#include <cstdint>

namespace veln {

namespace {

/// The bytes of a character of more than one byte, as its first byte tells.
std::size_t LengthByFirst(unsigned char first)
{
  if (first >= 0xF0) {
    return 4;
  }
  return first >= 0xE0 ? 3 : 2;
}

/// The length in bytes of the well-formed character at the start of `text`, 0 if there is none.
std::size_t CharacterLength(std::string_view text)
{
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) {
    return 1;
  }
  const std::size_t length = LengthByFirst(first);
  if (first < 0xC2 || first > 0xF4 || text.size() < length) {
    return 0;
  }
  std::uint32_t code = first & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0U) != 0x80) {
      return 0;
    }
    code = (code << 6U) | (next & 0x3FU);
  }
  const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return overlong || surrogate || code > 0x10FFFF ? 0 : length;
}

}  // namespace

std::size_t CharacterCount(std::string_view text)
{
  std::size_t count = 0;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    text.remove_prefix(length == 0 ? 1 : length);
    ++count;
  }
  return count;
}

bool IsUtf8(std::string_view text)
{
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0) {
      return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

bool IsControlCharacter(char32_t code)
{
  return code < U' ' || (code >= 0x7F && code < 0xA0);
}

bool HasControlCharacter(std::string_view text)
{
  constexpr unsigned char BeginsUpperControl = 0xC2;  // and U+00A0 to U+00BF
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const auto next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0xFFU;
    if ((byte < 0x80 && IsControlCharacter(byte)) || (byte == BeginsUpperControl && next < 0xA0)) {
      return true;
    }
  }
  return false;
}

void AppendUtf8(std::string& text, char32_t code)
{
  constexpr char32_t TailBits = 6;
  const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
  const auto putTail = [put, code](char32_t shift) { put(0x80U | ((code >> shift) & 0x3FU)); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0U | (code >> TailBits));
    putTail(0);
  } else if (code < 0x10000) {
    put(0xE0U | (code >> 2 * TailBits));
    putTail(TailBits);
    putTail(0);
  } else {
    put(0xF0U | (code >> 3 * TailBits));
    putTail(2 * TailBits);
    putTail(TailBits);
    putTail(0);
  }
}

}  // namespace veln
