#include "toolkit/rich_text_builder.h"

#include "toolkit/rtf_tokens.h"
#include "toolkit/utf8.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace veln {

namespace {

constexpr std::string_view BlankCharacters = " \t\n";
constexpr std::array<std::string_view, 2> Bullets = {"\u2022", "\u00B7"};

bool IsBlank(const TextRun& run)
{
  return run.Text.find_first_not_of(BlankCharacters) == std::string::npos;
}

/// A paragraph that begins with a bullet is an item of a list; the bullet goes, and the blanks behind it.
void TakeBullet(RichParagraph& paragraph)
{
  auto& runs = paragraph.Runs;
  auto text = std::ranges::find_if_not(runs, IsBlank);
  if (text == runs.end()) {
    return;
  }
  const std::size_t start = text->Text.find_first_not_of(BlankCharacters);
  const std::string_view begin = std::string_view(text->Text).substr(start);
  const auto* const bullet =
      std::ranges::find_if(Bullets, [begin](auto mark) { return begin.starts_with(mark); });
  if (bullet == Bullets.end()) {
    return;
  }
  paragraph.Bullet = true;
  text->Text.erase(0, start + bullet->size());
  text = std::find_if_not(text, runs.end(), IsBlank);
  runs.erase(runs.begin(), text);
  if (!runs.empty()) {
    runs.front().Text.erase(0, runs.front().Text.find_first_not_of(BlankCharacters));
  }
}

}  // namespace

void RichTextBuilder::Append(const TextRun& form, char32_t code)
{
  auto& runs = paragraph_.Runs;
  if (runs.empty() || runs.back().Bold != form.Bold || runs.back().Italic != form.Italic ||
      runs.back().HalfPoints != form.HalfPoints) {
    runs.push_back(form);
  }
  AppendUtf8(runs.back().Text, code);
  if (code > U' ') {
    ++sizes_[form.HalfPoints];
  }
}

void RichTextBuilder::EndParagraph()
{
  RichParagraph paragraph = std::exchange(paragraph_, {});
  TakeBullet(paragraph);
  if (std::ranges::all_of(paragraph.Runs, IsBlank)) {
    return;
  }
  if (row_) {
    cell_.push_back(std::move(paragraph));
  } else {
    document_.Blocks.emplace_back(std::move(paragraph));
  }
}

void RichTextBuilder::StartRow()
{
  if (!row_) {
    EndParagraph();
    row_.emplace();
  }
}

void RichTextBuilder::EndCell()
{
  auto& row = OpenRow();
  EndParagraph();
  row.push_back(std::exchange(cell_, {}));
}

void RichTextBuilder::EndRow()
{
  auto& row = OpenRow();
  EndParagraph();
  if (!cell_.empty()) {
    EndCell();
  }
  if (document_.Blocks.empty() || !std::holds_alternative<RichTable>(document_.Blocks.back())) {
    document_.Blocks.emplace_back(RichTable{});
  }
  std::get<RichTable>(document_.Blocks.back()).Rows.push_back(std::move(row));
  row_.reset();
}

RichText RichTextBuilder::Finish()
{
  if (row_) {
    RefuseRichText("it ends within a table");
  }
  EndParagraph();
  if (!sizes_.empty()) {
    document_.BodyHalfPoints =
        std::ranges::max_element(sizes_, {}, [](const auto& size) { return size.second; })->first;
  }
  for (RichBlock& block : document_.Blocks) {
    if (auto* const paragraph = std::get_if<RichParagraph>(&block)) {
      paragraph->Heading = paragraph->Bullet ? 0 : HeadingLevel(*paragraph);
    }
  }
  return std::move(document_);
}

std::vector<RichCell>& RichTextBuilder::OpenRow()
{
  if (!row_) {
    RefuseRichText("a table cell stands outside a table");
  }
  return *row_;
}

/// By the smallest letters of the paragraph: one large word makes no heading.
int RichTextBuilder::HeadingLevel(const RichParagraph& paragraph) const
{
  int size = LargestHalfPoints;
  for (const TextRun& run : paragraph.Runs) {
    size = IsBlank(run) ? size : std::min(size, run.HalfPoints);
  }
  const int body = document_.BodyHalfPoints;
  if (size <= body) {
    return 0;
  }
  if (size * 2 >= body * 3) {
    return 1;
  }
  return size * 5 >= body * 6 ? 2 : 3;
}

}  // namespace veln
