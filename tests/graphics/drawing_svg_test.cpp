#include "graphics/drawing_svg.h"

#include "graphics/mark_layers.h"
#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

Drawing Surface()
{
  return {0, 0, 100, 100, 100, {}, {}};
}

TEST(MarkLayers, KeepThePictureOfTheDrawingOrder)
{
  struct Dot {
    UnitPoint At;
    int Ink, Width;
    std::size_t Layer;
  };
  SteadyRandom random(11);
  MarkLayers layers(1500, 1500, 15);
  std::vector<Dot> dots;
  std::map<std::size_t, int> inks;
  for (int i = 0; i < 1500; ++i) {
    const auto whole = [&random](int below) { return static_cast<int>(random.Next() * below); };
    Dot dot{{whole(1500), whole(1500)}, 9 + whole(3), 30 + 60 * whole(2), 0};
    dot.Layer = layers.Place(dot.At, dot.At, QBColor(dot.Ink), dot.Width);
    EXPECT_EQ(inks.emplace(dot.Layer, dot.Ink).first->second, dot.Ink) << "a layer has one colour";
    for (const Dot& before : dots) {
      const long x = before.At.X - dot.At.X;
      const long y = before.At.Y - dot.At.Y;
      const long reach = (before.Width + dot.Width) / 2;
      const bool overlap = x * x + y * y < reach * reach;
      ASSERT_TRUE(before.Ink == dot.Ink || !overlap || before.Layer < dot.Layer) << "at dot " << i;
    }
    dots.push_back(dot);
  }
  EXPECT_LT(inks.size(), 200) << "dots share their layers";
}

TEST(SvgText, HoldsANumberAtTheRightEdgeInsideThePicture)
{
  Drawing drawing = Surface();  // 100 pixels are 1500 twips
  for (const double x : {50.0, 80.0}) {
    drawing.Marks.emplace_back(TextMark{{x, 50}, " 1458 ", QBColor(0), 8, true});
  }
  const std::string svg = SvgText(drawing);
  EXPECT_THAT(svg, HasSubstr("<text x=\"750\""));
  EXPECT_THAT(svg, HasSubstr("<text x=\"1500\""));
  const std::size_t anchor = svg.find("text-anchor=\"end\"");
  EXPECT_GT(anchor, svg.find("<text x=\"1500\""));
  EXPECT_NE(anchor, std::string::npos);
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
