#include "graph_fields.h"
#include "graphics/plot_statistics.h"
#include "graphics/site_text.h"

namespace veln {
namespace {

using enum GraphEntry;

TEST(GraphMenu, RefusesAClosedEntryAndKeepsThePlot)
{
  SurveyState state = ImportedSurvey(GridSurvey(10, 5, 1));
  SurveyGraph graph = LoadSurveyGraph(state);
  DitherGenerator dither;
  for (const GraphEntry entry : {mnuSs2x, mnuSz1z2, mnuHz1, mnuVta, mnuLs2}) {
    EXPECT_EQ(RefusalOf([&] { SelectGraph(graph, state, entry, dither); }),
              "This graph is not available for the survey as it stands.");
  }
  EXPECT_EQ(graph.Shown.Title, "Please use the Menu Bar to Select a Graph");
}

TEST(GraphWindow, ShowsThePanelsOfThePlotSelected)
{
  SurveyState state = SmallExample();
  SurveyGraph graph = OpenGraph(state);
  DitherGenerator dither;
  const auto open = [&](GraphEntry entry) {
    SelectGraph(graph, state, entry, dither);
    const Plot& plot = graph.Shown;
    return std::string(plot.LinePanel ? "rows " : "") + (plot.StatisticsPanel ? "statistics " : "") +
           (plot.LegendPanel ? "legend " : "") + (graph.IsEnabled(mnuOSS) ? "overlay" : "");
  };
  const std::map<std::string, std::vector<GraphEntry>> shows{
      {"", {mnuGrid, mnuHta}},
      {"statistics ", {mnuSs1x, mnuSs2y, mnuSs1s2, mnuSz1z2, mnuHs1, mnuHz2}},
      {"rows ", {mnuLs1, mnuLs2, mnuLs1s2}},
      {"legend overlay", {mnuVs1, mnuVs2, mnuVta}}};
  for (const GraphEntry before : {mnuSs1x, mnuLs1, mnuVs1}) {
    for (const auto& [panels, entries] : shows) {
      for (const GraphEntry entry : entries) {
        open(before);
        EXPECT_EQ(open(entry), panels) << static_cast<int>(entry);
      }
    }
  }
}

TEST(GraphWindow, OffersTheOverlayOnceThereIsADesign)
{
  for (const auto& [saved, manual] : {std::pair{0, false}, std::pair{1, false}, std::pair{0, true}}) {
    SurveyState state = ImportedSurvey(GridSurvey(10, 5));
    state.DesignCount = saved;
    state.ManualDesignDone = manual;
    SurveyGraph graph = LoadSurveyGraph(state);
    ShowColourMap(graph, state, mnuVs1);
    EXPECT_EQ(graph.IsEnabled(mnuOSS), saved == 1 || manual);
    EXPECT_EQ(ExistingDesigns(state), (DesignFlags{saved == 1, false, false, false, false, manual}));
  }
}

TEST(GraphWindow, DrawsWhatIsLeftAfterADeletionOnTheOldRanges)
{
  SurveyState state = SmallExample();
  SurveyGraph graph = OpenGraph(state);
  const Limits before = graph.XRange;
  for (auto* column :
       {&state.CoordX, &state.CoordY, &state.Signal1, &state.Signal2, &state.Decorr1, &state.Decorr2}) {
    column->resize(40);
  }
  state.SiteStatus.resize(40);
  state.SurveySize = 40;  // the transition scores keep their 60
  DitherGenerator dither;
  for (int i = 0; i < GraphEntryCount; ++i) {
    const auto entry = static_cast<GraphEntry>(i);
    if (entry != mnuOSS && graph.IsEnabled(entry)) {
      SelectGraph(graph, state, entry, dither);
      EXPECT_LE(graph.Shown.Sites.size(), 40);
    }
  }
  MakeSSMap(graph, state, ExistingDesigns(state));
  EXPECT_EQ(graph.Shown.Sites.size(), 40);
  EXPECT_EQ(graph.XRange.Maximum, before.Maximum);
  EXPECT_EQ(SiteText(state, 40), "");
}

TEST(StatisticsPanel, FollowsTheKindsOfItsArguments)
{
  Plot plot;
  SetSubStats(plot, {"EMh", 2, 1}, {"s1 s2 Corr", 0});
  EXPECT_EQ(plot.Statistics.Lblr2, "r= 0.0000");
  SetStats(plot, {"z1", 0, 1}, {}, {"Corr", UnlessWhole(-1)});
  EXPECT_EQ(plot.Statistics,
            (PlotStatistics{"z1", "u= 0.000", "s= 1.000", "", "", "", "Corr", "r= -1.0000", ""}));
  SetStats(plot, {"EMv", 1.0005, {}}, Limits{12.336, 15 / 0.0});
  EXPECT_EQ(plot.Statistics,
            (PlotStatistics{"EMv", "u= 1.001", "", "min and max", "12.340", "", "", "", ""}));
  for (const double whole : {0.0, 1.0, 0.00004, -0.00004, 0.99996}) {
    EXPECT_EQ(UnlessWhole(whole), std::nullopt) << whole;
  }
  EXPECT_EQ(UnlessWhole(0.00006), 0.00006);
}

TEST(Translation, IsAskedForAndClearsThePlot)
{
  SurveyState state = SmallExample();
  SurveyGraph graph = OpenGraph(state);
  ShowColourMap(graph, state, mnuVs1);
  ScriptedDialogs dialogs({false, true});
  EXPECT_FALSE(StartTranslation(graph, dialogs));
  EXPECT_TRUE(graph.Shown.LegendPanel);
  EXPECT_TRUE(StartTranslation(graph, dialogs));
  EXPECT_THAT(dialogs.Named, Each(Question::TranslateForGood));
  EXPECT_EQ(dialogs.Said[1],
            "ask: WARNING!  Any translation(s) you perform will \nPERMANENTLY change the X and Y "
            "coordinates!\n\nDo you still wish to proceed with this option?");
  EXPECT_EQ(graph.Shown.Picture.Marks.size(), Plot::FrameMarks);
  EXPECT_FALSE(graph.OverlayAllowed() || graph.Shown.LegendPanel);
}

TEST(SiteText, TellsAllThatIsKnownOfASite)
{
  SurveyState state = SmallExample();
  state.CoordX[17] = 500123.45;
  state.CoordY[17] = -117.1234567;
  state.Signal1[17] = 45.678;
  state.Signal2[17] = 32;
  state.Decorr1[17] = 1.005;
  state.Decorr2[17] = -0.001;
  EXPECT_EQ(SiteText(state, 17),
            "Site 18\nx 500123.45, y -117.123457\nEMv 45.68, EMh 32.00\n"
            "z1 1.01, z2 0.00\nsample design 1\nrow 2");
  state = ImportedSurvey(GridSurvey(10, 5, 1));
  state.Signal1[0] = 7;
  EXPECT_EQ(SiteText(state, 0), "Site 1\nx 0.0, y 0.0\nEMv 7.00\nfree");
}

}  // namespace
}  // namespace veln
