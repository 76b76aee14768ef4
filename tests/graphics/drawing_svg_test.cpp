#include "graphics/drawing_svg.h"

#include "support/surveys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace veln {
namespace {

using testing::HasSubstr;

Drawing Surface()
{
  return {0, 0, 100, 100, 100, {}, {}};
}

/// A dot as the document has it, in twips.
struct SvgDot {
  long X, Y, Width;
  std::string Ink;
  bool operator==(const SvgDot&) const = default;
  auto operator<=>(const SvgDot&) const = default;
};

/// The text between two marks behind `at`, which moves behind it; empty at the end.
std::string Between(const std::string& text, std::size_t& at, const std::string& before,
                    const std::string& after)
{
  const std::size_t begin = text.find(before, at);
  if (begin == std::string::npos) {
    at = text.size();
    return "";
  }
  const std::size_t end = text.find(after, begin + before.size());
  at = end;
  return text.substr(begin + before.size(), end - begin - before.size());
}

/// The dots of a document in the order drawn.
std::vector<SvgDot> DotsOf(const std::string& svg)
{
  std::vector<SvgDot> dots;
  for (std::size_t at = 0; at < svg.size();) {
    const std::string pen = Between(svg, at, "<path class=\"", "\"");
    std::istringstream data(Between(svg, at, " d=\"", "\""));
    std::size_t style = 0;
    SvgDot dot{0, 0, 0, Between(svg, style, "." + pen + "{stroke:", ";")};
    dot.Width = std::atol(Between(svg, style, "stroke-width:", "}").c_str());
    for (char command = 0; data >> command;) {
      long x = 0;
      long y = 0;
      data >> x;
      data.ignore(data.peek() == ',' ? 1 : 0);
      data >> y;
      dot.X = x + (command == 'm' ? dot.X : 0);
      dot.Y = y + (command == 'm' ? dot.Y : 0);
      data.ignore(2);  // "h0"
      dots.push_back(dot);
    }
  }
  return dots;
}

TEST(SvgText, KeepsThePictureOfTheDrawingOrder)
{
  SteadyRandom random(11);
  Drawing drawing = Surface();
  std::vector<SvgDot> expected;
  const std::vector<std::pair<Colour, std::string>> inks = {
      {{255, 0, 0}, "#ff0000"}, {{0, 128, 0}, "#008000"}, {{0, 0, 255}, "#0000ff"}};
  for (int i = 0; i < 1500; ++i) {
    const auto& [ink, name] = inks[static_cast<std::size_t>(random.Next() * 3)];
    const double width = random.Next() < 0.5 ? 2 : 6;
    const DrawPoint at{std::floor(random.Next() * 1500) / 15, std::floor(random.Next() * 1500) / 15};
    drawing.PSet(at, {ink, width});
    expected.push_back({std::lround(at.X * 15), std::lround(at.Y * 15), std::lround(width * 15), name});
  }
  const std::string svg = SvgText(drawing);
  std::vector<SvgDot> found = DotsOf(svg);
  EXPECT_LT(std::count(svg.begin(), svg.end(), '\n'), 1000) << "dots share their paths";
  std::multimap<SvgDot, std::size_t> places;
  for (std::size_t i = 0; i < found.size(); ++i) {
    places.emplace(found[i], i);
  }
  std::vector<std::size_t> order;
  for (const SvgDot& dot : expected) {
    const auto place = places.find(dot);
    ASSERT_NE(place, places.end()) << dot.X << "," << dot.Y;
    order.push_back(place->second);
    places.erase(place);
  }
  EXPECT_TRUE(places.empty());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const SvgDot& a = expected[i];
      const SvgDot& b = expected[j];
      const long reach = (a.Width + b.Width) / 2;
      const bool overlap = (a.X - b.X) * (a.X - b.X) + (a.Y - b.Y) * (a.Y - b.Y) < reach * reach;
      ASSERT_TRUE(a.Ink == b.Ink || !overlap || order[j] < order[i]) << j << " under " << i;
    }
  }
}

TEST(SvgText, DrawsALineBetweenWhatLiesUnderAndOverIt)
{
  Drawing drawing = Surface();
  const Pen red{{255, 0, 0}, 2};
  drawing.PSet({10, 10}, red);
  drawing.Line({0, 0}, {50, 50}, {{0, 0, 255}, 1});
  drawing.PSet({40, 40}, red);
  drawing.PSet({90, 10}, red);
  const std::string svg = SvgText(drawing);
  const std::size_t under = svg.find("M150,150h0");
  const std::size_t line = svg.find("M0,0L750,750");
  const std::size_t over = svg.find("M600,600h0");
  EXPECT_TRUE(under < line && line < over && over != std::string::npos) << svg;
  EXPECT_LT(svg.find("m1200,0h0"), line) << "a dot clear of the line shares the first path";
}

TEST(SvgText, LeavesOutADotThatItsHighlightCovers)
{
  Drawing drawing = Surface();
  drawing.PSet({10, 10}, {{0, 0, 128}, 2});
  drawing.Line({0, 0}, {10, 10}, {{128, 0, 0}, 1});
  drawing.PSet({10, 10}, {{128, 0, 0}, 4});
  const std::string svg = SvgText(drawing);
  EXPECT_THAT(svg, HasSubstr("d=\"M150,150h0\""));
  EXPECT_EQ(svg.find("h0"), svg.rfind("h0"));
}

TEST(SvgText, IsXmlWithTextAsText)
{
  Drawing drawing = Surface();
  drawing.Marks.emplace_back(
      TextMark{{50, 10}, " a<b> & \"c\"  \x01\xff", {0, 0, 128}, 8, true, TextAnchor::Middle});
  const std::string svg = SvgText(drawing, "A & B");
  EXPECT_THAT(svg, HasSubstr("<title>A &amp; B</title>"));
  EXPECT_THAT(svg,
              HasSubstr("<text x=\"750\" y=\"297\" font-size=\"160\" fill=\"#000080\" font-weight=\"bold\" "
                        "text-anchor=\"middle\" xml:space=\"preserve\"> a&lt;b&gt; &amp; \"c\"  ?"
                        "?</text>"));
  EXPECT_THAT(svg,
              HasSubstr("width=\"100\" height=\"100\" viewBox=\"0 0 1500 1500\" font-family=\"sans-serif\""));
}

TEST(SvgText, ClipsWhatTheDrawingClipsAndDropsWhatIsOffTheSurface)
{
  Drawing drawing = Surface();
  drawing.Box({10, 10}, {90, 90}, {{}, 2});
  drawing.PSet({5, 5}, {{}, 4});
  drawing.PSet({150, 50}, {{}, 4});
  drawing.PSet({1E300, 50}, {{}, 4});
  drawing.Marks.emplace_back(BoxMark{{20, 50}, {30, 50}, {{0, 128, 0}, 2}, true});
  drawing.Clip = ClippedMarks{{10, 10}, {90, 90}, 1};
  const std::string svg = SvgText(drawing);
  EXPECT_THAT(svg,
              HasSubstr("<clipPath id=\"box\"><rect x=\"150\" y=\"150\" width=\"1200\" height=\"1200\"/>"));
  EXPECT_THAT(svg, HasSubstr("<g clip-path=\"url(#box)\">\n<path class=\"d0\" d=\"M75,75h0\"/>"));
  EXPECT_THAT(svg, HasSubstr("<rect x=\"300\" y=\"735\" width=\"150\" height=\"30\" fill=\"#008000\"/>"))
      << "a filled box is at least as thick as its pen";
  EXPECT_EQ(svg.find("h0"), svg.rfind("h0"));
}

}  // namespace
}  // namespace veln
