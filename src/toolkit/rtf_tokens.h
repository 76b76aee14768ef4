#pragma once

#include <optional>
#include <string_view>

namespace veln {

/// One piece of an RTF document.
struct RtfToken {
  enum class Type {
    GroupStart,
    GroupEnd,
    Word,    ///< a control word with its number, if it has one
    Symbol,  ///< a control character other than a letter: Character
    Byte     ///< one byte of text in code page 1252, as itself or as \'hh: Character
  };
  Type Kind = Type::Byte;
  std::string_view Word;
  std::optional<int> Number;
  char Character = 0;
};

/// Takes the tokens of an RTF document one by one. Line ends in the file mean nothing and are passed over,
/// and so are the bytes behind \bin.
class RtfTokens {
 public:
  /// `rtf` must outlive the reader.
  explicit RtfTokens(std::string_view rtf) : rest_(rtf) {}

  /// The next token; empty at the end of the file. Throws Refusal for an escape that is cut or malformed and
  /// for a byte that no RTF holds.
  std::optional<RtfToken> Next();
  /// What has not been taken yet.
  [[nodiscard]] std::string_view Rest() const { return rest_; }

 private:
  RtfToken TakeEscape();
  RtfToken TakeWord();
  RtfToken TakeHexByte();
  std::optional<int> TakeNumber();

  std::string_view rest_;
};

/// Refuses a document as damaged, with the cause.
[[noreturn]] void RefuseRichText(const char* cause);

}  // namespace veln
