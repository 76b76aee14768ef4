#include "graph_fields.h"

namespace veln {
namespace {

using enum GraphEntry;

/// s1 has the mean 10 and the deviation 2: squares 4 + 4 + 0 = 8, over n - 1 = 2.
SurveyState ThreeClasses()
{
  return SitesAt({0, 50, 100}, {0, 10, 40}, {8, 10, 12});
}

std::vector<Pen> PensOf(const std::vector<Colour>& inks, double width = 4)
{
  std::vector<Pen> pens;
  for (const Colour& ink : inks) {
    pens.push_back({ink, width});
  }
  return pens;
}

TEST(ColourMap, PutsAValueOnALimitIntoTheLowerClass)
{
  const MapColours& classes = Palette(1);
  EXPECT_EQ(DotPens(PlotOf(ThreeClasses(), mnuVs1)), PensOf({classes[0], classes[1], classes[2]}))
      << "one deviation below the mean, the mean, one above";
  SurveyState state = ThreeClasses();
  state.TransitionScore = {0.5, 1, 1.001};
  state.TransitionDone = true;
  EXPECT_EQ(DotPens(PlotOf(state, mnuVta)), PensOf({classes[0], classes[2], classes[3]}));
}

TEST(ColourMap, OfAConstantSignalIsOfTheSecondClass)
{
  // 0.1 three times has a mean off by a rounding, so that its deviation is not quite 0.
  const Plot plot = PlotOf(SitesAt({0, 1, 2}, {0, 1, 2}, {0.1, 0.1, 0.1}), mnuVs1);
  EXPECT_THAT(DotPens(plot), Each(Pen{Palette(1)[1], 4}));
}

TEST(ColourMap, TakesANewPaletteWithTheNextInitialisation)
{
  SurveyState state = ThreeClasses();
  SurveyGraph graph = OpenGraph(state);
  SetCCDDP(graph, {4, 3, 10});
  ShowColourMap(graph, state, mnuVs1);
  EXPECT_EQ(DotPens(graph.Shown)[0], (Pen{Palette(1)[0], 10}));
  EXPECT_EQ(graph.Shown.Legend, ComposeLegend({}, 1, MapMeaning::Signal)) << "of the map as drawn";
  EXPECT_EQ(LoadLegend(graph.Options, MapMeaning::Signal).Caption, "GrayScale Legend") << "as chosen";
  InitCSG(graph, state);
  ShowColourMap(graph, state, mnuVs1);
  EXPECT_EQ(DotPens(graph.Shown)[1].Ink, (Colour{128, 128, 128}));
}

TEST(ColourBlindSafeColours, StandInForThePaletteAndRedrawTheMapWithItsDesigns)
{
  SurveyState state = ThreeClasses();
  state.SiteStatus[1] = 2;
  SurveyGraph graph = OpenGraph(state);
  SetCCDDP(graph, {4, 2, 4});
  InitCSG(graph, state);
  ShowColourMap(graph, state, mnuVs1);
  CSOver(graph, state, {false, true});
  SetColourBlindSafe(graph, state, true);
  const MapColours& safe = ColourBlindSafePalette();
  EXPECT_THAT(DotPens(graph.Shown),
              ElementsAre(Pen{safe[0], 4}, Pen{safe[1], 4}, Pen{safe[2], 4}, Pen{QBColor(12), 6}));
  EXPECT_EQ(graph.Shown.Title, "GrayScale Map of EMv Signal Data");
  EXPECT_EQ(LoadLegend(graph.Options, MapMeaning::Signal).Colours, safe);
  ShowColourMap(graph, state, mnuVs1);
  SetColourBlindSafe(graph, state, false);
  EXPECT_EQ(DotPens(graph.Shown).size(), 3) << "a new map has no designs over it";
  ShowSurveyGrid(graph, state);
  const Plot before = graph.Shown;
  SetColourBlindSafe(graph, state, true);
  EXPECT_EQ(graph.Shown.Picture, before.Picture) << "the survey grid has no map colours";
}

TEST(DesignOverlay, MarksTheDesignsAskedForOnTheMapShown)
{
  SurveyState state = ThreeClasses();
  state.SiteStatus = {1, 6, 2};
  SurveyGraph graph = OpenGraph(state);
  CSOver(graph, state, {true});
  EXPECT_TRUE(DotPens(graph.Shown).empty()) << "no map to draw on";
  ShowColourMap(graph, state, mnuVs1);
  const Plot map = graph.Shown;
  for (const auto& [symbol, width] : {std::pair{1, 6.0}, std::pair{6, 8.0}, std::pair{10, 10.0}}) {
    graph.Shown = map;
    SetCCDDP(graph, {1, 2, symbol});
    CSOver(graph, state, {true, false, false, false, false, true});
    const auto dots = Only<DotMark>(graph.Shown.Picture);
    ASSERT_EQ(dots.size(), 5);
    EXPECT_EQ(dots[3], (DotMark{map.Sites[0].At, {QBColor(0), width}}));
    EXPECT_EQ(dots[4], (DotMark{map.Sites[1].At, {QBColor(0), width}}));
  }
  EXPECT_FALSE(graph.Shown.LegendPanel);
  CSOver(graph, state, {false, true});
  SetColourBlindSafe(graph, state, true);
  EXPECT_EQ(DotPens(graph.Shown).size(), 6) << "all designs that were laid over the map";
}

TEST(LegendWindow, HasFourDotsInTheColoursOfTheClasses)
{
  const MapColours& classes = Palette(2);
  std::vector<DotMark> dots;
  for (std::size_t i = 0; i < classes.size(); ++i) {
    dots.push_back({{440, 320 + 360.0 * static_cast<double>(i)}, {classes.at(i), 10}});
  }
  EXPECT_EQ(Only<DotMark>(LegendDots(ComposeLegend({}, 2, MapMeaning::Transition))), dots);
}

}  // namespace
}  // namespace veln
