#include "graph_fields.h"

namespace veln {
namespace {

using enum GraphEntry;

const Pen Plain{QBColor(1), 2};

/// Five sites; x from 100 to 180, y from 0 to 40, s1 from 10 to 50, s2 from 2 to 6.
SurveyState FiveSites()
{
  return SitesAt({100, 120, 140, 160, 180}, {0, 40, 20, 10, 30}, {30, 10, 50, 20, 40}, {2, 3, 4, 5, 6});
}

TEST(ScatterPlot, HasItsExtremesAtOneAndTheStatisticsOfItsSignal)
{
  const Plot plot = PlotOf(FiveSites(), mnuSs1x);
  EXPECT_THAT(PlacesOn(&DrawPoint::X, plot), ElementsAre(-1, -0.5, 0, 0.5, 1));
  EXPECT_THAT(PlacesOn(&DrawPoint::Y, plot), ElementsAre(0, 1, -1, 0.5, -0.5));
  // s1: mean 30, squares 400 + 400 + 100 + 100 = 1000, std sqrt(250); sum of products with x 600, of x
  // squares 4000, so r = 600 / sqrt(4000 * 1000) = 0.3.
  EXPECT_EQ(plot.Statistics,
            (PlotStatistics{"EMv", "u= 30.000", "s= 15.811", "", "", "", "Corr(s1, x)", "r= 0.3000", ""}));
}

TEST(ScatterPlot, OfAConstantSignalHasItsSitesInTheMiddleAndNoCorrelation)
{
  const Plot plot = PlotOf(SitesAt({1, 2, 3}, {5, 5, 5}, {7, 7, 7}), mnuSs1y);
  EXPECT_THAT(PlacesOn(&DrawPoint::X, plot), Each(0));
  EXPECT_THAT(PlacesOn(&DrawPoint::Y, plot), Each(0));
  EXPECT_EQ(plot.Labels, (AxisLabels{"5", "5", "5", "7.00", "7.00", "7.00"}));
  EXPECT_EQ(plot.Statistics,
            (PlotStatistics{"EMv", "u= 7.000", "s= 0.000", "", "", "", "Corr(s1, y)", "", ""}));
}

TEST(Highlights, LieOverThePlainDotInTheOrderOfTheSites)
{
  SurveyState state = FiveSites();
  state.SiteStatus = {site_status::Masked, 3, site_status::Outlier, site_status::Candidate, 6};
  SurveyGraph graph = OpenGraph(state);
  const Pen masked{QBColor(14), 4};
  const Pen sample{QBColor(11), 4};
  const Pen outlier{QBColor(4), 4};
  ShowScatterPlot(graph, state, mnuSs2y);
  EXPECT_THAT(DotPens(graph.Shown),
              ElementsAre(Plain, masked, Plain, sample, Plain, outlier, Plain, Plain, sample));
  SetHLOps(graph, false, true);
  ShowSurveyGrid(graph, state);
  EXPECT_THAT(DotPens(graph.Shown), ElementsAre(Plain, Plain, sample, Plain, Plain, Plain, sample));
  SetHLOps(graph, true, false);
  ShowSurveyGrid(graph, state);
  EXPECT_THAT(DotPens(graph.Shown), ElementsAre(Plain, masked, Plain, Plain, outlier, Plain, Plain));
}

SurveyState WithDecorrelated(SurveyState state, std::vector<double> z1, std::vector<double> z2 = {})
{
  state.Decorr1 = std::move(z1);
  state.Decorr2 = std::move(z2);
  state.DecorrDone = true;
  return state;
}

TEST(RsdPlot, IsASquareOfTheLargestMagnitudeAtLeastThree)
{
  const Plot small = PlotOf(WithDecorrelated(FiveSites(), {-1, 0, 1, 2, 0}, {0, 2.5, 1, -2, 0}), mnuSz1z2);
  EXPECT_EQ(small.Labels, (AxisLabels{"-3.00", "0.00", "3.00", "-3.00", "0.00", "3.00"}));
  SurveyState state = WithDecorrelated(FiveSites(), {-4.2, 3.1, 0, 0, 0}, {-2, 5.5, 0, 1, 0});
  state.SiteStatus[1] = site_status::Outlier;
  SurveyGraph graph = OpenGraph(state);
  SetHLOps(graph, false, true);
  DitherGenerator dither;
  ShowRsdPlot(graph, state, dither);
  EXPECT_EQ(graph.Shown.Labels.txtMinX, "-5.50");
  EXPECT_EQ(graph.Shown.Sites[1].At, (DrawPoint{1, -3.1 / 5.5}));
  EXPECT_EQ(Only<LineMark>(graph.Shown.Picture).size(), 6) << "no ray without the highlight";
}

TEST(DitherPlot, SpreadsOneSignalOnABandAnewEachTime)
{
  SurveyState state = WithDecorrelated(SitesAt({1, 2, 3}, {1, 2, 4}, {5, 6, 7}), {-1.5, 0, 6});
  SurveyGraph graph = OpenGraph(state);
  DitherGenerator dither;
  ShowRsdPlot(graph, state, dither);
  const Plot first = graph.Shown;
  EXPECT_THAT(PlacesOn(&DrawPoint::X, first), ElementsAre(-0.25, 0, 1));
  EXPECT_THAT(PlacesOn(&DrawPoint::Y, first), Each(DoubleNear(0, 0.2)));
  ShowRsdPlot(graph, state, dither);
  EXPECT_EQ(PlacesOn(&DrawPoint::X, graph.Shown), PlacesOn(&DrawPoint::X, first));
  EXPECT_NE(PlacesOn(&DrawPoint::Y, graph.Shown), PlacesOn(&DrawPoint::Y, first));
  DitherGenerator nextRun;
  ShowRsdPlot(graph, state, nextRun);
  EXPECT_EQ(PlacesOn(&DrawPoint::Y, graph.Shown), PlacesOn(&DrawPoint::Y, first));
}

}  // namespace
}  // namespace veln
