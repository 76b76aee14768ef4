#include "toolkit/rich_text.h"

#include "toolkit/rich_text_builder.h"
#include "toolkit/rtf_tokens.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

namespace veln {

namespace {

/// Code page 1252 from 80 to 9F; 0 where it has no character.
constexpr std::array<char32_t, 32> UpperControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

struct NamedCharacter {
  std::string_view Word;
  char32_t Code;
};

constexpr std::array<NamedCharacter, 11> NamedCharacters = {{{"tab", U'\t'},
                                                             {"line", U'\n'},
                                                             {"bullet", 0x2022},
                                                             {"emdash", 0x2014},
                                                             {"endash", 0x2013},
                                                             {"lquote", 0x2018},
                                                             {"rquote", 0x2019},
                                                             {"ldblquote", 0x201C},
                                                             {"rdblquote", 0x201D},
                                                             {"emspace", 0x2003},
                                                             {"enspace", 0x2002}}};

constexpr std::array<NamedCharacter, 6> Symbols = {
    {{"\\", U'\\'}, {"{", U'{'}, {"}", U'}'}, {"~", 0xA0}, {"-", 0xAD}, {"_", 0x2011}}};

/// Groups whose text is no part of the document.
constexpr std::array<std::string_view, 24> SkippedDestinations = {
    "fonttbl",   "colortbl", "stylesheet", "info",      "pict",      "header",
    "headerl",   "headerr",  "headerf",    "footer",    "footerl",   "footerr",
    "footerf",   "footnote", "annotation", "object",    "filetbl",   "revtbl",
    "listtable", "fldinst",  "nonshppict", "themedata", "datafield", "listoverridetable"};

template <std::size_t N>
std::optional<char32_t> Find(const std::array<NamedCharacter, N>& table, std::string_view word)
{
  const auto* const found = std::ranges::find(table, word, &NamedCharacter::Word);
  return found == table.end() ? std::nullopt : std::optional(found->Code);
}

char32_t FromCodePage(char byte)
{
  const auto code = static_cast<unsigned char>(byte);
  return code >= 0x80 && code < 0xA0 ? UpperControls.at(code - 0x80U) : code;
}

/// Follows the groups and words of a document.
class RtfReader {
 public:
  explicit RtfReader(std::string_view rtf) : tokens_(rtf) {}

  RichText Read()
  {
    do {
      const auto token = tokens_.Next();
      if (!token) {
        RefuseRichText("it ends before its last group is closed");
      }
      Handle(*token);
    } while (!groups_.empty());
    constexpr std::string_view Padding(" \t\r\n\0", 5);
    if (tokens_.Rest().find_first_not_of(Padding) != std::string_view::npos) {
      RefuseRichText("there is more behind its last group");
    }
    return builder_.Finish();
  }

 private:
  struct Group {
    TextRun Form;
    int FallbackLength = 1;  // characters behind a \u that stand for it in older readers
    bool Skipped = false;
  };

  void Handle(const RtfToken& token)
  {
    switch (token.Kind) {
      case RtfToken::Type::GroupStart:
        toSkip_ = 0;
        groups_.push_back(groups_.empty() ? Group{} : Group(groups_.back()));
        return;
      case RtfToken::Type::GroupEnd:
        toSkip_ = 0;
        RequireWholeCharacter();
        groups_.pop_back();
        return;
      default:
        break;
    }
    if (toSkip_ > 0) {
      --toSkip_;
    } else if (token.Kind == RtfToken::Type::Word) {
      HandleWord(token.Word, token.Number);
    } else if (token.Kind == RtfToken::Type::Symbol) {
      HandleSymbol(token.Character);
    } else {
      Append(FromCodePage(token.Character));
    }
  }

  void HandleSymbol(char symbol)
  {
    if (symbol == '*') {
      groups_.back().Skipped = true;
    } else if (const auto code = Find(Symbols, std::string_view(&symbol, 1))) {
      Append(*code);
    } else if (symbol != ':' && symbol != '|') {
      RefuseRichText("it holds an escape that is not known");
    }
  }

  void HandleWord(std::string_view word, std::optional<int> number)
  {
    if (const auto code = Find(NamedCharacters, word)) {
      Append(*code);
    } else if (word == "u") {
      AppendUnicode(number);
    } else if (std::ranges::find(SkippedDestinations, word) != SkippedDestinations.end()) {
      groups_.back().Skipped = true;
    } else if (!groups_.back().Skipped && !HandleForm(word, number)) {
      HandleStructure(word);
    }
  }

  bool HandleForm(std::string_view word, std::optional<int> number)
  {
    TextRun& form = groups_.back().Form;
    if (word == "b") {
      form.Bold = number != 0;
    } else if (word == "i") {
      form.Italic = number != 0;
    } else if (word == "fs") {
      form.HalfPoints = std::clamp(number.value_or(TextRun().HalfPoints), 1, LargestHalfPoints);
    } else if (word == "plain") {
      form = {};
    } else if (word == "uc") {
      groups_.back().FallbackLength = std::max(0, number.value_or(1));
    } else {
      return false;
    }
    return true;
  }

  void HandleStructure(std::string_view word)
  {
    if (word == "par" || word == "sect" || word == "page") {
      RequireWholeCharacter();
      builder_.EndParagraph();
    } else if (word == "trowd") {
      builder_.StartRow();
    } else if (word == "cell") {
      builder_.EndCell();
    } else if (word == "row") {
      builder_.EndRow();
    }
  }

  /// \uN: a 16-bit code unit, negative above 32767; two surrogates make one character.
  void AppendUnicode(std::optional<int> number)
  {
    constexpr int UnitCount = 0x10000;
    if (!number || *number < -UnitCount / 2 || *number >= UnitCount) {
      RefuseRichText("it holds an escape that stands for no character");
    }
    const auto unit = static_cast<char32_t>(*number < 0 ? *number + UnitCount : *number);
    toSkip_ = groups_.back().FallbackLength;
    if (unit >= 0xD800 && unit < 0xDC00) {
      RequireWholeCharacter();
      highSurrogate_ = unit;
    } else if (unit >= 0xDC00 && unit < 0xE000) {
      if (highSurrogate_ == 0) {
        RefuseRichText("it holds half a character");
      }
      Append(0x10000 + ((std::exchange(highSurrogate_, 0) - 0xD800) << 10U) + (unit - 0xDC00));
    } else {
      Append(unit);
    }
  }

  void Append(char32_t code)
  {
    RequireWholeCharacter();
    if (groups_.back().Skipped) {
      return;
    }
    if ((code < U' ' && code != U'\t' && code != U'\n') || (code >= 0x7F && code < 0xA0)) {
      RefuseRichText("it holds an escape that stands for no character");
    }
    builder_.Append(groups_.back().Form, code);
  }

  void RequireWholeCharacter() const
  {
    if (highSurrogate_ != 0) {
      RefuseRichText("it holds half a character");
    }
  }

  RtfTokens tokens_;
  RichTextBuilder builder_;
  std::vector<Group> groups_;
  int toSkip_ = 0;
  char32_t highSurrogate_ = 0;
};

}  // namespace

RichText ReadRichText(std::string_view rtf)
{
  constexpr std::string_view Beginning = "{\\rtf";
  if (!rtf.starts_with(Beginning)) {
    RefuseRichText("it does not begin as one");
  }
  const auto first = RtfTokens(rtf.substr(1)).Next();
  if (!first || first->Word != "rtf") {
    RefuseRichText("it does not begin as one");
  }
  return RtfReader(rtf).Read();
}

}  // namespace veln
