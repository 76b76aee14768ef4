#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veln {

/// The number of Unicode characters of a UTF-8 text; a byte that starts no valid character counts as one.
std::size_t CharacterCount(std::string_view text);

/// Whether the text is well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF).
bool IsUtf8(std::string_view text);

/// Whether a character is a control character: one below the blank, DEL, or U+0080 to U+009F.
bool IsControlCharacter(char32_t code);

/// Whether a well-formed text holds a control character.
bool HasControlCharacter(std::string_view text);

/// Appends one Unicode character, which is no surrogate and at most U+10FFFF.
void AppendUtf8(std::string& text, char32_t code);

}  // namespace veln
