#include "toolkit/rich_text.h"

#include "support/table.h"
#include "support/testing.h"
#include "toolkit/refusal.h"

#include <ctime>
#include <random>

namespace veln {
namespace {

namespace fs = std::filesystem;

const fs::path Data = VELN_TEST_DATA;

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

bool IsDamaged(const std::string& rtf)
{
  return RefusalOf([&] { RichTextToHtml(ReadRichText(rtf)); }) != "not refused";
}

std::vector<fs::path> HelpDocuments()
{
  return {fs::directory_iterator(Data / ".." / ".." / ".." / "helpdocs"), fs::directory_iterator()};
}

/// A short document with something of everything.
const std::string Everything = InRtf(
    R"({\fonttbl{\f0 Arial;}}{\b\fs40 Title\par}a long body, {\b bold {\i both}\b0  {\fs28 large}{\fs16 small}}  )"
    R"(x\tab "q"\par{\fs24 Sub\par}\bullet  one \'e9\u8730?\u-10179?\u-8704?\par{\pntext\'b7\tab}two\par)"
    R"(\pard\trowd\cellx1 a\cell {\i b}\par\bullet  c\cell\row\trowd d\cell\row{\*\gen {\b No}}{\pict\bin3 {{{})"
    R"(\uc2\u233 ab\{\}\\\~\endash last\line < & >)");

TEST(ReadRichText, ShowsWhatTheTableSays)
{
  for (const TableCase& document : ReadTable(Data / "rich_text.txt")) {
    ASSERT_EQ(document.Lines.size(), 2U) << document.Place;
    EXPECT_EQ(Shown(document.Lines[0]), document.Lines[1]) << document.Place;
  }
  EXPECT_EQ(Shown("one\n two\\par\r\nthree\\line four\\tab five\\\nsix"), "one two|three\nfour\tfive|six|")
      << "line ends of the file mean nothing";
}

TEST(ReadRichText, KeepsSizesAndTables)
{
  const RichText text = ReadRichText(InRtf(
      R"(before {\fs31 large}\par\trowd\cellx100\cellx200\pard\intbl one\cell two\par more\cell\trowd\row)"
      R"(\trowd\intbl\cell{\b four}\row after)"));
  ASSERT_EQ(text.Blocks.size(), 3U);
  const auto& runs = std::get<RichParagraph>(text.Blocks[0]).Runs;
  EXPECT_EQ(std::pair(runs.at(0).HalfPoints, runs.at(1).HalfPoints), std::pair(20, 31));
  const auto& rows = std::get<RichTable>(text.Blocks[1]).Rows;
  ASSERT_EQ(rows.size(), 2U);
  ASSERT_EQ(rows[0].size(), 2U);
  EXPECT_EQ(rows[0][1].at(1).Runs.at(0).Text, "more");
  ASSERT_EQ(rows[1].size(), 2U);
  EXPECT_TRUE(rows[1][0].empty());
  EXPECT_TRUE(rows[1][1].at(0).Runs.at(0).Bold);
}

TEST(ReadRichText, RefusesDamagedDocuments)
{
  for (const std::string rtf :
       {"", "plain text", R"( {\rtf1 a})", R"({\rtfx a})", R"({\rtf1 a)", R"({\rtf1 a}{b})", R"({\rtf1 a}b)",
        R"({\rtf1 \)", R"({\rtf1 \')", R"({\rtf1 \'4)"}) {
    EXPECT_TRUE(IsDamaged(rtf)) << rtf;
  }
  for (const TableCase& body : ReadTable(Data / "damaged_rich_text.txt")) {
    EXPECT_EQ(RefusalOf([&] { ReadRichText(InRtf(body.Head)); }),
              "The rich text document is damaged: " + body.Lines.at(0) + ".")
        << body.Place;
  }
  EXPECT_TRUE(IsDamaged(std::string("{\\rtf1 a\0b}", 11)));
  EXPECT_TRUE(IsDamaged(InRtf("a\x02")));
  EXPECT_FALSE(IsDamaged(InRtf("\\" + std::string(32, 'a'))));
  EXPECT_FALSE(IsDamaged(std::string("{\\rtf1 a}\r\n\0", 12)));
}

TEST(ReadRichText, RefusesADocumentCutAnywhereAndReadsOrRefusesAChangedOne)
{
  for (std::size_t length = 0; length < Everything.size(); ++length) {
    ASSERT_TRUE(IsDamaged(Everything.substr(0, length))) << length;
  }
  constexpr std::string_view Telling = "{}\\'*ub09 \n";
  std::mt19937 random(20'230);
  const auto below = [&random](std::size_t end) { return random() % end; };
  int refused = 0;
  for (int round = 0; round < 3000; ++round) {
    std::string rtf = Everything;
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
          rtf.erase(at, 1 + below(20));
          break;
        default:
          rtf.insert(at, rtf.substr(below(rtf.size()), 1 + below(20)));
      }
    }
    refused += IsDamaged(rtf) ? 1 : 0;
  }
  EXPECT_GT(refused, 500);
  EXPECT_LT(refused, 2500);
}

/// Processor seconds of reading and showing a piece `count` times over.
double SecondsFor(const std::string& piece, int count)
{
  const std::string rtf = InRtf(Repeated(piece, count));
  const std::clock_t start = std::clock();
  EXPECT_FALSE(IsDamaged(rtf)) << piece;
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(ReadRichText, TakesTimeByTheLengthAloneAndNoStackForGroups)
{
  constexpr int Many = 100'000;
  EXPECT_EQ(ReadRichText(InRtf(Repeated(R"({\b)", Many) + " x" + Repeated("}", Many))).Blocks.size(), 1U);
  EXPECT_TRUE(IsDamaged(InRtf(Repeated("{", Many))));
  for (const char* piece :
       {R"({\b  })", R"(\bullet  )", R"(\bullet x\par )", R"(\trowd\cell\row )", R"(x\par )", R"(\'b7)",
        R"(\u8730?)", R"({\fs24 x}{\fs26 y})", R"({\pict x})", R"(\uc9\u65 )"}) {
    EXPECT_LT(SecondsFor(piece, 8000), 24 * SecondsFor(piece, 1000) + 0.05) << piece;
  }
}

TEST(RichTextToHtml, HasAnElementForEachForm)
{
  EXPECT_EQ(RichTextToHtml(ReadRichText(Everything)), ReadText(Data / "everything.html"));
}

TEST(HelpDocuments, AreSevenBitTextWithATitleAndWholeOrRefused)
{
  ASSERT_GE(HelpDocuments().size(), 9U);
  for (const auto& path : HelpDocuments()) {
    SCOPED_TRACE(path.filename());
    const std::string rtf = ReadText(path);
    const RichText text = ReadRichText(rtf);
    ASSERT_GE(text.Blocks.size(), 10U);
    EXPECT_EQ(std::get<RichParagraph>(text.Blocks.front()).Heading, 1);
    const std::string html = RichTextToHtml(text);
    EXPECT_NE(html.find("<h3>"), std::string::npos);
    EXPECT_EQ(html.find("&#160;"), std::string::npos) << "two blanks in a row";
    EXPECT_TRUE(IsDamaged(rtf.substr(0, rtf.rfind('}')))) << "cut";
  }
}

}  // namespace
}  // namespace veln
