#include "toolkit/rich_text.h"

#include "support/testing.h"
#include "toolkit/refusal.h"

#include <random>

namespace veln {
namespace {

std::string InRtf(const std::string& body)
{
  return R"({\rtf1\ansi\fs20 )" + body + "}";
}

/// The paragraphs outside tables in a form for the eye: "*" before an item of a list, "#" once a heading's
/// level, bold runs in [], italic ones in //.
std::string Shown(const std::string& body)
{
  std::string shown;
  for (const RichBlock& block : ReadRichText(InRtf(body)).Blocks) {
    const auto& paragraph = std::get<RichParagraph>(block);
    shown += (paragraph.Bullet ? "*" : "") + std::string(static_cast<std::size_t>(paragraph.Heading), '#');
    for (const TextRun& run : paragraph.Runs) {
      const std::string text = run.Italic ? "/" + run.Text + "/" : run.Text;
      shown += run.Bold ? "[" + text + "]" : text;
    }
    shown += "|";
  }
  return shown;
}

std::string Html(const std::string& body)
{
  const std::string html = RichTextToHtml(ReadRichText(InRtf(body)));
  return html.substr(13, html.size() - 13 - 15);  // between <html><body> and </body></html>
}

bool IsDamaged(const std::string& rtf)
{
  try {
    ReadRichText(rtf);
    return false;
  } catch (const Refusal&) {
    return true;
  }
}

std::vector<std::filesystem::path> HelpDocuments()
{
  std::vector<std::filesystem::path> documents;
  const auto folder =
      (std::filesystem::path(VELN_TEST_DATA) / ".." / ".." / ".." / "helpdocs").lexically_normal();
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    documents.push_back(entry.path());
  }
  return documents;
}

TEST(ReadRichText, ShowsItsParagraphs)
{
  struct Case {
    const char* What;
    std::string Body, Paragraphs;
  };
  const Case cases[] = {
      {"line ends of the file mean nothing", "one\n two\\par\r\nthree\\line four\\tab five\\\nsix",
       "one two|three\nfour\tfive|six|"},
      {"paragraphs without text are left out", R"(\par one\par\par  \tab\par two\par\bullet\tab\par)",
       "one|two|"},
      {"bold and italic last to the end of their group", R"(a{\b b{\i c}d\b0 e}f\i g\plain h)",
       "a[b][/c/][d]ef/g/h|"},
      {"over a body of 10 pt, headings of level 1 begin at 15 pt, of level 2 at 12 pt",
       R"({\fs30 A\par}{\fs29 B\par}{\fs24 C\par}{\fs23 D\par}most of the text\par)",
       "#A|##B|##C|###D|most of the text|"},
      {"a large word or item is no heading",
       R"({\fs40 one large} word in a line of the body's size\par{\fs40\bullet  item\par})",
       "one large word in a line of the body's size|*item|"},
      {"bullets in their several forms",
       R"(\bullet\tab one\par\bullet  two\par{\pntext\f1\'b7\tab}three\par)"
       R"({\listtext\f1\'b7\tab}{\b four}\par{\*\pn\pnlvlblt{\pntxtb\'b7}}\'95 )"
       R"(five\par six \'b7 seven)",
       "*one|*two|*three|*[four]|*five|six \u00B7 seven|"},
      {"hex escapes are code page 1252", R"(\'80\'96\'e9\'FF\'d7)", "\u20AC\u2013\u00E9\u00FF\u00D7|"},
      {"Unicode escapes skip their fallback", R"(a\u8730?b\u8730 ?c\u8730\'3fd)", "a\u221Ab\u221Ac\u221Ad|"},
      {"a fallback of other lengths", R"({\uc0\u233}x{\uc4\u8730 sqrt}y\u-4064?z{\uc3\u233 ab}c)",
       "\u00E9x\u221Ay\uF020z\u00E9c|"},
      {"surrogates", R"(\u-10179?\u-8704?)", "\U0001F600|"},
      {"punctuation", R"(\{\}\\\~\-\_\lquote\rquote\ldblquote\rdblquote\endash\emdash)",
       "{}\\\u00A0\u00AD\u2011\u2018\u2019\u201C\u201D\u2013\u2014|"},
      {"what is no text of the document",
       R"({\fonttbl{\f0\fswiss )"
       R"(Arial;}}{\colortbl;\red0;}{\stylesheet{Normal;}}{\info{\title No\par}})"
       "{\\*\\generator {\\b No} \\'81\\cell;}{\\pict\\bin5 {{{\x01\\00ff}yes\\unknown12 !",
       "yes!|"}};
  for (const Case& c : cases) {
    EXPECT_EQ(Shown(c.Body), c.Paragraphs) << c.What;
  }
}

TEST(ReadRichText, SizeIsKeptInHalfPoints)
{
  const RichText text = ReadRichText(InRtf(R"(small {\fs31 large})"));
  const auto& runs = std::get<RichParagraph>(text.Blocks.at(0)).Runs;
  EXPECT_EQ(runs.at(0).HalfPoints, 20);
  EXPECT_EQ(runs.at(1).HalfPoints, 31);
}

TEST(ReadRichText, TablesHoldRowsOfCells)
{
  const RichText text = ReadRichText(
      InRtf(R"(before\par\trowd\cellx100\cellx200\pard\intbl one\cell two\par more\cell\trowd\row)"
            R"(\trowd\intbl\cell{\b four}\row after)"));
  ASSERT_EQ(text.Blocks.size(), 3U);
  const auto& rows = std::get<RichTable>(text.Blocks[1]).Rows;
  ASSERT_EQ(rows.size(), 2U);
  ASSERT_EQ(rows[0].size(), 2U);
  EXPECT_EQ(rows[0][1].at(1).Runs.at(0).Text, "more");
  ASSERT_EQ(rows[1].size(), 2U);
  EXPECT_TRUE(rows[1][0].empty());
  EXPECT_TRUE(rows[1][1].at(0).Runs.at(0).Bold);
}

TEST(ReadRichText, DamagedDocumentsAreRefused)
{
  for (const char* rtf : {"", "plain text", R"( {\rtf1 a})", R"({\rtfx a})", R"({\rtf1 a)", R"({\rtf1 a}{b})",
                          R"({\rtf1 a}b)", R"({\rtf1 \)", R"({\rtf1 \')", R"({\rtf1 \'4)"}) {
    EXPECT_TRUE(IsDamaged(rtf)) << rtf;
  }
  for (const char* body :
       {"{a",       "a}",           R"(\'4)",          R"(\'g0)",     R"(\'+1)",
        R"(\'81)",  R"(\'01)",      R"(\u)",           R"(\u65536?)", R"(\u-32769?)",
        R"(\u0?)",  R"(\u-10179?)", R"(\u-10179?a)",   R"(\u-8704?)", R"(\fs99999999999 a)",
        R"(\%)",    R"(\bin9 a)",   R"(\bin-1 a)",     "a\x02",       "\xC3\xA9",
        R"(\cell)", R"(\row)",      R"(\trowd a\cell)"}) {
    EXPECT_TRUE(IsDamaged(InRtf(body))) << body;
  }
  EXPECT_TRUE(IsDamaged(std::string("{\\rtf1 a\0b}", 11)));
  EXPECT_TRUE(IsDamaged(InRtf("\\" + std::string(33, 'a'))));
  EXPECT_FALSE(IsDamaged(std::string("{\\rtf1 a}\r\n\0", 12)));
}

TEST(ReadRichText, TimeGrowsWithTheLengthAlone)
{
  // About half a megabyte of each: more than linear time would pass the test's limit, recursion would
  // overflow.
  constexpr int Many = 100'000;
  const std::string nested = InRtf(Repeated(R"({\b)", Many) + " x" + Repeated("}", Many));
  EXPECT_EQ(ReadRichText(nested).Blocks.size(), 1U);
  EXPECT_TRUE(IsDamaged(InRtf(Repeated("{", Many))));
  for (const char* piece :
       {R"({\b  })", R"(\bullet  )", R"(\bullet x\par )", R"(\trowd\cell\row )", R"(x\par )", R"(\'b7)",
        R"(\u8730?)", R"({\fs24 x}{\fs26 y})", R"({\pict x})", R"(\uc9\u65 )"}) {
    EXPECT_FALSE(RichTextToHtml(ReadRichText(InRtf(Repeated(piece, Many)))).empty()) << piece;
  }
}

TEST(RichTextToHtml, MarksWhatSetsARunOff)
{
  EXPECT_EQ(
      Html(R"(a {\b b} {\i c}  d\tab\line{\fs28 e}{\fs16 f} < > & \u8730?\par)"),
      "<p>a <b>b</b> <i>c</i> &#160;d&#8195;<br/><big>e</big><small>f</small> &lt; &gt; &amp; \u221A</p>\n");
}

TEST(RichTextToHtml, HeadingsListsAndTablesHaveTheirElements)
{
  EXPECT_EQ(Html(R"({\b\fs40 Title\par}a long body\par\bullet  one\par\bullet  two\par\trowd a\cell )"
                 R"(b\par c\cell\row)"),
            "<h2>Title</h2>\n<p>a long body</p>\n<ul>\n<li>one</li>\n<li>two</li>\n</ul>\n"
            "<table border=\"1\" cellspacing=\"0\" "
            "cellpadding=\"4\" style=\"border-style:solid; border-collapse:collapse; "
            "margin-top:8px\">\n<tr><td>a</td><td>b<br/>c</td></tr>\n</table>\n");
}

TEST(HelpDocuments, BeginWithATitleAndAreSevenBitText)
{
  ASSERT_GE(HelpDocuments().size(), 9U);
  for (const auto& path : HelpDocuments()) {
    SCOPED_TRACE(path.filename());
    const RichText text = ReadRichText(ReadText(path));
    ASSERT_GE(text.Blocks.size(), 10U);
    EXPECT_EQ(std::get<RichParagraph>(text.Blocks.front()).Heading, 1);
    const std::string html = RichTextToHtml(text);
    EXPECT_NE(html.find("<h3>"), std::string::npos);
    EXPECT_EQ(html.find("&#160;"), std::string::npos) << "two blanks in a row";
  }
}

TEST(HelpDocuments, CutAnywhereAreRefused)
{
  for (const auto& path : HelpDocuments()) {
    const std::string rtf = ReadText(path);
    const std::size_t whole = rtf.rfind('}');
    for (std::size_t length = 0; length <= whole; length += 1 + length / 30) {
      ASSERT_TRUE(IsDamaged(rtf.substr(0, length))) << path.filename() << " cut to " << length;
    }
    EXPECT_TRUE(IsDamaged(rtf.substr(0, whole)));
    EXPECT_FALSE(IsDamaged(rtf.substr(0, whole + 1)));
  }
}

TEST(HelpDocuments, ChangedAnywhereAreReadOrRefused)
{
  constexpr unsigned Seed = 20'230;
  constexpr std::string_view Telling = "{}\\'*ub09 \n";
  std::mt19937 random(Seed);
  const auto below = [&random](std::size_t end) { return random() % end; };
  int refused = 0;
  int read = 0;
  for (const auto& path : HelpDocuments()) {
    const std::string whole = ReadText(path);
    for (int round = 0; round < 80; ++round) {
      std::string rtf = whole;
      for (std::size_t change = 0; change <= below(3); ++change) {
        const std::size_t at = below(rtf.size());
        switch (below(4)) {
          case 0:
            rtf[at] = static_cast<char>(below(256));
            break;
          case 1:
            rtf[at] = Telling[below(Telling.size())];
            break;
          case 2:
            rtf.erase(at, 1 + below(40));
            break;
          default:
            rtf.insert(at, rtf.substr(below(rtf.size()), 1 + below(40)));
        }
      }
      try {
        RichTextToHtml(ReadRichText(rtf));
        ++read;
      } catch (const Refusal&) {
        ++refused;
      }
    }
  }
  EXPECT_GT(refused, 100);
  EXPECT_GT(read, 100);
}

}  // namespace
}  // namespace veln
