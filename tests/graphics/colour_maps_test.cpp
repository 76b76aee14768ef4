#include "forms/igc_form.h"
#include "graph_fields.h"

namespace veln {
namespace {

using enum GraphEntry;

/// s1 has the mean 10 and the deviation 2: squares 4 + 4 + 0 = 8, over n - 1 = 2.
SurveyState ThreeClasses()
{
  return SitesAt({0, 50, 100}, {0, 10, 40}, {8, 10, 12});
}

Colour ColourOfSite(const Plot& plot, std::size_t site)
{
  return DotPens(plot).at(site).Ink;
}

TEST(ColourMap, PutsAValueOnALimitIntoTheLowerClass)
{
  const Plot plot = PlotOf(ThreeClasses(), mnuVs1);
  EXPECT_EQ(ColourOfSite(plot, 0), Palette(1)[0]) << "one deviation below";
  EXPECT_EQ(ColourOfSite(plot, 1), Palette(1)[1]) << "the mean";
  EXPECT_EQ(ColourOfSite(plot, 2), Palette(1)[2]) << "one deviation above";
  EXPECT_EQ(DotPens(plot)[0].Width, 4);
  EXPECT_EQ(plot.Title, "ColorScale Map of EMv Signal Data");
  EXPECT_EQ(plot.Labels, (AxisLabels{"0", "50", "100", "-30", "20", "70"}));
  EXPECT_TRUE(plot.LegendPanel);
  EXPECT_EQ(plot.Legend->Labels[3], "> 1 STD above Signal mean");
}

TEST(ColourMap, OfTransitionScoresHasFixedLimits)
{
  SurveyState state = ThreeClasses();
  state.TransitionScore = {0.5, 1, 1.001};
  state.TransitionDone = true;
  const Plot plot = PlotOf(state, mnuVta);
  EXPECT_EQ(ColourOfSite(plot, 0), Palette(1)[0]);
  EXPECT_EQ(ColourOfSite(plot, 1), Palette(1)[2]);
  EXPECT_EQ(ColourOfSite(plot, 2), Palette(1)[3]);
  EXPECT_EQ(plot.Legend->Labels[2], "0.75 < z1 TA-STD < 1.0");
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
  EXPECT_EQ(ColourOfSite(graph.Shown, 0), Palette(1)[0]);
  EXPECT_EQ(DotPens(graph.Shown)[0].Width, 10);
  EXPECT_EQ(LoadLegend(graph.Options, MapMeaning::Signal).Caption, "GrayScale Legend");
  InitCSG(graph, state);
  ShowColourMap(graph, state, mnuVs1);
  EXPECT_EQ(graph.Shown.Title, "GrayScale Map of EMv Signal Data");
  EXPECT_EQ(ColourOfSite(graph.Shown, 1), (Colour{128, 128, 128}));
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
  ShowSurveyGrid(graph, state);
  const Plot before = graph.Shown;
  SetColourBlindSafe(graph, state, false);
  EXPECT_EQ(graph.Shown.Picture, before.Picture) << "the survey grid has no map colours";
}

TEST(DesignOverlay, MarksTheDesignsAskedForOnTheMapShown)
{
  SurveyState state = ThreeClasses();
  state.SiteStatus = {1, 6, 2};
  SurveyGraph graph = OpenGraph(state);
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
  EXPECT_EQ(graph.Shown.Labels, map.Labels);
  EXPECT_FALSE(graph.Shown.LegendPanel);
}

TEST(LegendWindow, HasFourDotsInTheColoursOfTheClasses)
{
  const MapLegend legend = ComposeLegend({}, 2, MapMeaning::Transition);
  EXPECT_EQ(legend.Caption, "ColorScale Legend");
  const auto dots = Only<DotMark>(LegendDots(legend));
  ASSERT_EQ(dots.size(), 4);
  EXPECT_EQ(dots[0], (DotMark{{440, 320}, {{0, 255, 64}, 10}}));
  EXPECT_EQ(dots[3], (DotMark{{440, 1400}, {{0, 64, 192}, 10}}));
}

}  // namespace
}  // namespace veln
