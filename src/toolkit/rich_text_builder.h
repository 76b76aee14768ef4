#pragma once

#include "toolkit/rich_text.h"

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

namespace veln {

inline constexpr int LargestHalfPoints = 3276;  // 1638 pt

/// Collects a document's characters into runs, paragraphs, cells and rows. Throws Refusal for cells outside a
/// row and for a row that is never closed.
class RichTextBuilder {
 public:
  /// One character in the form told; the form's own text is empty.
  void Append(const TextRun& form, char32_t code);
  /// Ends a paragraph; one without text leaves no trace.
  void EndParagraph();
  /// Opens a row; within an open one nothing happens, since writers tell a row's form twice.
  void StartRow();
  void EndCell();
  void EndRow();
  /// The document, its headings found.
  RichText Finish();

 private:
  std::vector<RichCell>& OpenRow();
  [[nodiscard]] int HeadingLevel(const RichParagraph& paragraph) const;

  RichText document_;
  RichParagraph paragraph_;
  RichCell cell_;
  std::optional<std::vector<RichCell>> row_;  // while a row is open
  std::map<int, std::size_t> sizes_;          // characters by font size
};

}  // namespace veln
