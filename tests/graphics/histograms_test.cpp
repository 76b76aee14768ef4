#include "graph_fields.h"

namespace veln {
namespace {

using enum GraphEntry;

SurveyState WithSignal(const std::vector<double>& s1)
{
  std::vector<double> places(s1.size());
  std::iota(places.begin(), places.end(), 0.0);
  return SitesAt(places, places, s1);
}

TEST(HistogramCounts, PutAValueOnAnEdgeIntoTheUpperBinAndAConstantSeriesIntoTheLast)
{
  SurveyState constant = WithSignal({4, 4, 4});
  EXPECT_EQ(OpenGraph(constant).HistCount[0][19], 3);
  std::vector<double> steps(21);
  std::iota(steps.begin(), steps.end(), 0.0);  // 0 to 20: bin j holds j - 1, the last one 20 as well
  SurveyState state = WithSignal(steps);
  const SurveyGraph graph = OpenGraph(state);
  EXPECT_EQ(graph.HistCount[0][19], 2);
  EXPECT_THAT(std::vector(graph.HistCount[0].begin(), graph.HistCount[0].end() - 1), Each(1));
}

TEST(HistogramCounts, StayAsInitHistLeftThemWhileTheLimitsFollow)
{
  SurveyState state = WithSignal({0, 10, 10, 20});
  SurveyGraph graph = OpenGraph(state);
  state.Signal1[3] = 40;
  ShowHistogram(graph, state, mnuHs1);
  EXPECT_EQ(graph.Shown.Labels, (AxisLabels{"0.00", "20.00", "40.00", "0.0", "1.0", "2.0"}));
  EXPECT_EQ(graph.HistCount[0][10], 2);
  InitHist(graph, state);
  EXPECT_EQ(graph.HistCount[0][5], 2);
}

TEST(HistogramBars, StandOnTheAxisAndReachTheTop)
{
  const Plot plot = PlotOf(WithSignal({0, 10, 10, 12.34}), mnuHs1);
  const auto bars = Only<BoxMark>(plot.Picture);  // behind the box and its frame
  ASSERT_EQ(bars.size(), 22);
  EXPECT_EQ(bars[2], (BoxMark{{-0.99, 1}, {-0.91, 0}, {QBColor(2), 2}, true}));
  EXPECT_EQ(bars[18].Second.Y, -1) << "10 lies in bin 17 of 20 over 12.34";
  // Mean 8.085; squares 65.367 + 2 * 3.667 + 18.105 = 90.806, std sqrt(90.806 / 3) = 5.502.
  EXPECT_EQ(plot.Statistics,
            (PlotStatistics{"EMv", "u= 8.085", "s= 5.502", "min and max", "0.000", "12.340", "", "", ""}));
}

TEST(HistogramOfTransitionScores, BeginsAtZeroAndHasNoStatistics)
{
  SurveyState state = WithSignal({1, 2, 3, 4});
  state.TransitionScore = {0.5, 0.5, 1, 2};
  state.TransitionDone = true;
  const Plot plot = PlotOf(state, mnuHta);
  EXPECT_EQ(plot.Labels, (AxisLabels{"0.00", "1.00", "2.00", "0.0", "1.0", "2.0"}));
  EXPECT_EQ(Only<BoxMark>(plot.Picture)[2 + 5].Second.Y, -1) << "0.5 begins bin 6";
  EXPECT_FALSE(plot.StatisticsPanel);
}

}  // namespace
}  // namespace veln
