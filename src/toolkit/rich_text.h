#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace veln {

/// Text in one form. UTF-8; a line feed is a line break within the paragraph, a tab a tab.
struct TextRun {
  std::string Text;
  bool Bold = false;
  bool Italic = false;
  int HalfPoints = 24;  ///< font size
  bool operator==(const TextRun&) const = default;
};

struct RichParagraph {
  std::vector<TextRun> Runs;
  bool Bullet = false;  ///< an item of a list; its runs stand without the bullet
  int Heading = 0;      ///< 1 to 3 from the largest; 0 is no heading
  bool operator==(const RichParagraph&) const = default;
};

/// The paragraphs of one cell; none in an empty cell.
using RichCell = std::vector<RichParagraph>;

struct RichTable {
  std::vector<std::vector<RichCell>> Rows;
  bool operator==(const RichTable&) const = default;
};

using RichBlock = std::variant<RichParagraph, RichTable>;

/// A document as rich text files tell it, without colours, fonts and page layout, so that it takes those of
/// the desktop.
struct RichText {
  std::vector<RichBlock> Blocks;
  int BodyHalfPoints = 24;  ///< the size in which most of the text stands
  bool operator==(const RichText&) const = default;
};

/// Reads a document in RTF. Text is 7-bit with \'hh escapes by code page 1252 and \uN escapes. Understood:
/// paragraphs, line breaks, tabs, bold, italic, font size, bullets, tables of one level, the usual
/// punctuation words. Pictures, fields' instructions, tables of fonts, colours and styles, and all
/// destinations marked as ignorable are skipped; words that are not known are passed over. Paragraphs without
/// text are left out. A paragraph set larger than the body is a heading: of level 1 from 1.5 times its size,
/// 2 from 1.2 times, otherwise 3. Takes time in proportion to the length. Throws Refusal for what is no RTF
/// or a damaged one: cut, groups unbalanced, a row left open, an escape that stands for no character, control
/// characters or 8-bit characters among the text.
RichText ReadRichText(std::string_view rtf);

/// The document in the subset of HTML that Qt's rich text shows. Headings are h2 to h4; sizes are relative to
/// the reader's own font.
std::string RichTextToHtml(const RichText& text);

}  // namespace veln
