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

/// A mark of a random drawing: where it has ink, and how wide.
struct Inked {
  std::vector<DrawPoint> Points;
  Pen Stroke;
  std::size_t Layer = 0;
};

bool Overlap(const Inked& a, const Inked& b)
{
  const double reach = (a.Stroke.Width + b.Stroke.Width) / 2;
  return std::ranges::any_of(a.Points, [&](DrawPoint p) {
    return std::ranges::any_of(
        b.Points, [&](DrawPoint q) { return std::hypot(p.X - q.X, p.Y - q.Y) < reach - 0.1; });  // 1.5 twips
  });
}

TEST(Layers, KeepThePictureOfTheMarksOrder)
{
  SteadyRandom random(11);
  Drawing drawing = Surface();
  std::vector<Inked> inked;
  const auto place = [&random] { return DrawPoint{100 * random.Next(), 100 * random.Next()}; };
  for (int i = 0; i < 600; ++i) {
    const int colour = 9 + static_cast<int>(3 * random.Next());
    const Pen pen{QBColor(colour), 2 + 4 * std::floor(2 * random.Next())};
    const DrawPoint from = place();
    const DrawPoint to = i % 4 == 0 ? DrawPoint{from.X + 8 - i % 17, from.Y + 8 - i % 13} : from;
    if (i % 4 == 0) {
      drawing.Line(from, to, pen);
    } else {
      drawing.PSet(from, pen);
    }
    inked.push_back({{}, pen});
    for (int part = 0; part <= 20; ++part) {
      inked.back().Points.push_back(
          {from.X + (to.X - from.X) * part / 20, from.Y + (to.Y - from.Y) * part / 20});
    }
  }
  const auto layers = LayersOf(drawing, drawing.Marks);
  std::size_t held = 0;
  for (std::size_t layer = 0; layer < layers.size(); ++layer) {
    for (const DrawMark* mark : layers[layer].Marks) {
      Inked& own = inked.at(static_cast<std::size_t>(mark - drawing.Marks.data()));
      EXPECT_EQ(own.Stroke, layers[layer].Stroke);
      own.Layer = layer;
      ++held;
    }
  }
  EXPECT_EQ(held, drawing.Marks.size());
  for (std::size_t i = 0; i < inked.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      ASSERT_TRUE(inked[i].Stroke.Ink == inked[j].Stroke.Ink || inked[j].Layer < inked[i].Layer ||
                  !Overlap(inked[i], inked[j]))
          << j << " and " << i;
    }
  }
  EXPECT_LT(layers.size(), 200) << "marks share their layers";
}

TEST(Layers, LeaveATextBetweenWhatStandsBeforeAndBehindIt)
{
  Drawing drawing = Surface();
  const Pen pen{QBColor(1), 2};
  drawing.PSet({10, 10}, pen);
  drawing.Marks.emplace_back(TextMark{{90, 90}, "7", {}});
  drawing.PSet({10, 50}, pen);
  EXPECT_EQ(LayersOf(drawing, drawing.Marks).size(), 3);
  EXPECT_EQ(LayersOf(drawing, std::span(drawing.Marks).subspan(1)).size(), 2);
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

TEST(SvgText, TellsPensApart)
{
  Drawing drawing = Surface();
  const std::vector<double> widths = {0.5, 2, 2.5, 26, 27, 40};
  for (const double width : widths) {
    drawing.Line({width, 0}, {width, 100}, {{255, 0, 0}, width});
  }
  const std::string svg = SvgText(drawing);
  std::set<std::string> classes;
  for (std::size_t at = svg.find("class=\""); at != std::string::npos; at = svg.find("class=\"", at + 1)) {
    classes.insert(svg.substr(at + 7, svg.find('"', at + 7) - at - 7));
  }
  EXPECT_EQ(classes.size(), widths.size());
  EXPECT_THAT(svg, HasSubstr("{stroke:#ff0000;stroke-width:37.5}"));
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
