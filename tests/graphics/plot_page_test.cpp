#include "graphics/plot_page.h"

#include "graph_fields.h"

namespace veln {
namespace {

using enum GraphEntry;

std::vector<std::string> TextsOf(const Drawing& drawing)
{
  std::vector<std::string> texts;
  for (const TextMark& text : Only<TextMark>(drawing)) {
    texts.push_back(text.Text);
  }
  return texts;
}

/// A generous box around a text, in pixels of the page: characters as wide as the widest common fonts have
/// them.
struct TextBox {
  double Left, Right, Top, Bottom;
};

TextBox BoxOf(const TextMark& text)
{
  constexpr double PixelsPerUnit = 594 / 2.91;
  const double size = text.FontSize * 4 / 3;
  const double width = size * (text.Bold ? 0.7 : 0.64) * static_cast<double>(text.Text.size());
  const double shift = 0.5 * static_cast<int>(text.Anchor);  // start, middle, end
  const double x = (text.At.X + 1.6) * PixelsPerUnit - shift * width;
  const double y = (text.At.Y + 1.2) * PixelsPerUnit;
  return {x, x + width, y, y + size};
}

TEST(PlotPage, HasRoomForLongNumbersAndLabels)
{
  SurveyState utm = SitesAt({412349.08333, 500123.45678}, {4999876.54321, 4618105.11111},
                            {-12345678.123, 87654321.5}, {1E9, -1E9});
  utm.SignalLabel = {"WWWWWWWWWW", "MMMMMMMMMM"};
  UpdateSignalStats(utm);
  SurveyState degrees = SitesAt({-117.12345, -117.12301}, {-34.98765, -34.98701}, {1, 2}, {2, 5});
  for (SurveyState& state : std::vector<SurveyState>{utm, degrees}) {
    SurveyGraph graph = OpenGraph(state);
    SetCCDDP(graph, {1, 5, 4});
    for (const GraphEntry entry : {mnuGrid, mnuSs1x, mnuSs1y, mnuSs1s2, mnuHs1, mnuVs2}) {
      DitherGenerator dither;
      SelectGraph(graph, state, entry, dither);
      const auto texts = Only<TextMark>(PlotPage(graph.Shown));
      for (std::size_t i = 0; i < texts.size(); ++i) {
        const TextBox a = BoxOf(texts[i]);
        EXPECT_TRUE(a.Left >= 0 && a.Right <= 594 && a.Bottom <= 489) << texts[i].Text;
        for (std::size_t j = 0; j < i; ++j) {
          const TextBox b = BoxOf(texts[j]);
          EXPECT_FALSE(a.Left < b.Right && b.Left < a.Right && a.Top < b.Bottom && b.Top < a.Bottom)
              << texts[i].Text << " over " << texts[j].Text;
        }
      }
    }
  }
}

TEST(ZoomedPicture, MovesContentAndKeepsBoxPensAndTheDistanceOfTexts)
{
  SurveyState state = SitesAt({0, 50, 100}, {0, 50, 100}, {1, 2, 3});
  state.SiteStatus[1] = 1;
  SurveyGraph graph = OpenGraph(state);
  MakeSSMap(graph, state, {true});
  const PlotView view{-BoxEdge / 2, -BoxEdge / 2, BoxEdge};  // twice as large about the middle
  const Drawing zoomed = ZoomedPicture(graph.Shown, view);
  EXPECT_TRUE(std::equal(zoomed.Marks.begin(), zoomed.Marks.begin() + 8, graph.Shown.Picture.Marks.begin()));
  const auto dots = Only<DotMark>(zoomed);  // the two outer sites are out of sight
  ASSERT_EQ(dots.size(), 2);
  EXPECT_NEAR(dots[1].At.X, 2 * graph.Shown.Sites[1].At.X, 1E-12);
  EXPECT_EQ(dots[1].Stroke.Width, 4);
  EXPECT_NEAR(Only<TextMark>(zoomed)[0].At.Y, dots[1].At.Y - 0.08, 1E-12);
}

TEST(MapFurniture, HasARoundLengthAndStandsWhereTheFewestSitesAre)
{
  for (const auto& [longest, length] : std::vector<std::pair<double, double>>{
           {100, 100}, {99, 50}, {49, 20}, {0.0019, 0.001}, {1.99E6, 1E6}}) {
    EXPECT_DOUBLE_EQ(RoundLength(longest), length);
  }
  // Sites on the diagonal from the lower left to the upper right.
  const Plot plot = PlotOf(SitesAt({0, 50, 100}, {0, 50, 100}, {1, 2, 3}), mnuGrid);
  const auto marks = FurnitureMarks(plot, {}, {true, true});
  Drawing drawn;
  drawn.Marks = marks;
  const auto lines = Only<LineMark>(drawn);
  EXPECT_NEAR(lines[0].To.X - lines[0].From.X, 20 / 50.0, 1E-12) << "20 of 50 units a half axis";
  EXPECT_THAT(TextsOf(drawn), ElementsAre("20", "N"));
  drawn.Marks = FurnitureMarks(plot, {-BoxEdge, -BoxEdge, BoxEdge}, {true, false});
  EXPECT_THAT(TextsOf(drawn), ElementsAre("10")) << "in a box that shows half as much";
  drawn.Marks = marks;
  const auto backs = Only<BoxMark>(drawn);
  EXPECT_TRUE(backs[0].First.X > 0 && backs[0].First.Y > 0) << "the bar is at the lower right";
  EXPECT_TRUE(backs[1].First.X < 0 && backs[1].First.Y < 0) << "the arrow is at the upper left";
  EXPECT_THAT(FurnitureMarks(PlotOf(SmallExample(), mnuHs1), {}, {true, true}), IsEmpty());
}

TEST(PlotInWords, TellsTitleLimitsAndStatistics)
{
  const Plot plot = PlotOf(SitesAt({1, 2, 3}, {5, 5, 5}, {7, 7, 7}), mnuSs1x);
  EXPECT_EQ(DescribePlot(plot, plot.Labels),
            "EMv versus X; x axis from 1 to 3; y axis from 7.00 to 7.00; EMv, "
            "u= 7.000, s= 0.000, Corr(s1, x)");
}

}  // namespace
}  // namespace veln
