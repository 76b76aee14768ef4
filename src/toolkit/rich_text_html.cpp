#include "toolkit/rich_text.h"

#include <array>
#include <cstddef>
#include <ranges>

namespace veln {

namespace {

void PutCharacter(std::string& html, char c, bool behindBlank)
{
  switch (c) {
    case '&':
      html += "&amp;";
      break;
    case '<':
      html += "&lt;";
      break;
    case '>':
      html += "&gt;";
      break;
    case '"':
      html += "&quot;";
      break;
    case '\n':
      html += "<br/>";
      break;
    case '\t':
      html += "&#8195;";
      break;
    case ' ':
      html += behindBlank ? "&#160;" : " ";
      break;
    default:
      html += c;
  }
}

/// A run with what sets it off from the text around: bold (but not in a heading), italic, a size other than
/// the usual. `last` is the character before it: of blanks in a row all show.
void PutRun(std::string& html, const TextRun& run, bool bold, int usualSize, char& last)
{
  struct Mark {
    const char* Name;
    bool On;
  };
  const std::array<Mark, 4> marks = {{{"big", run.HalfPoints > usualSize},
                                      {"small", run.HalfPoints < usualSize},
                                      {"b", bold},
                                      {"i", run.Italic}}};
  for (const Mark& mark : marks) {
    html += mark.On ? std::string("<") + mark.Name + ">" : "";
  }
  for (const char c : run.Text) {
    PutCharacter(html, c, last == ' ');
    last = c;
  }
  for (const Mark& mark : std::views::reverse(marks)) {
    html += mark.On ? std::string("</") + mark.Name + ">" : "";
  }
}

void PutRuns(std::string& html, const RichParagraph& paragraph, int bodySize)
{
  const bool heading = paragraph.Heading > 0;
  char last = ' ';
  for (const TextRun& run : paragraph.Runs) {
    PutRun(html, run, run.Bold && !heading, heading ? run.HalfPoints : bodySize, last);
  }
}

void PutTable(std::string& html, const RichTable& table, int bodySize)
{
  html +=
      "<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\" style=\"border-style:solid; "
      "border-collapse:collapse; "
      "margin-top:8px\">\n";
  for (const auto& row : table.Rows) {
    html += "<tr>";
    for (const RichCell& cell : row) {
      html += "<td>";
      for (std::size_t i = 0; i < cell.size(); ++i) {
        html += i > 0 ? "<br/>" : "";
        html += cell[i].Bullet ? "\u2022 " : "";
        PutRuns(html, cell[i], bodySize);
      }
      html += "</td>";
    }
    html += "</tr>\n";
  }
  html += "</table>\n";
}

void PutParagraph(std::string& html, const RichParagraph& paragraph, int bodySize)
{
  constexpr std::array<const char*, 4> Elements = {"p", "h2", "h3", "h4"};
  const std::string element =
      paragraph.Bullet ? "li" : Elements.at(static_cast<std::size_t>(paragraph.Heading));
  html += "<" + element + ">";
  PutRuns(html, paragraph, bodySize);
  html += "</" + element + ">\n";
}

}  // namespace

std::string RichTextToHtml(const RichText& text)
{
  std::string html = "<html><body>\n";
  bool inList = false;
  for (const RichBlock& block : text.Blocks) {
    const auto* const paragraph = std::get_if<RichParagraph>(&block);
    const bool item = paragraph != nullptr && paragraph->Bullet;
    if (item != inList) {
      html += item ? "<ul>\n" : "</ul>\n";
      inList = item;
    }
    if (paragraph != nullptr) {
      PutParagraph(html, *paragraph, text.BodyHalfPoints);
    } else {
      PutTable(html, std::get<RichTable>(block), text.BodyHalfPoints);
    }
  }
  return html + (inList ? "</ul>\n" : "") + "</body></html>\n";
}

}  // namespace veln
