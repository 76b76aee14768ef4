#include "graph_fields.h"

namespace veln {
namespace {

using enum GraphEntry;

constexpr const char* NoSuchRow = "inform: Error! Requested Row # does not exist!";

/// Rows of 3, 1 and 2 sites along x; s1 and s2 rise with it.
SurveyState ThreeRows()
{
  SurveyState state =
      SitesAt({0, 5, 10, 3, 0, 10}, {0, 0, 0, 10, 20, 20}, {1, 2, 5, 3, 2, 4}, {3, 4, 5, 6, 7, 9});
  state.RowNumber = {4, 4, 4, 9, 4, 4};
  state.Kind = SurveyKind::Transect;
  return state;
}

class LinePlots : public testing::Test {
 protected:
  LinePlots() : State(ThreeRows()), Graph(OpenGraph(State)) {}

  void Plot(const std::string& row)
  {
    Graph.LinePanel.Text1 = row;
    PlotRow(Graph, State, Dialogs);
  }

  SurveyState State;
  SurveyGraph Graph;
  ScriptedDialogs Dialogs;
};

TEST_F(LinePlots, OfBothSignalsShareTheirRangeAndStayOverOneAnother)
{
  Graph.TransectAxis = FieldAxis::Y;
  StartLinePlots(Graph, mnuLs1s2);
  Plot("1");
  EXPECT_EQ(Graph.Shown.Title, "EMv & EMh versus Y for Row #1");
  EXPECT_EQ(Graph.Shown.Labels, (AxisLabels{"0", "10", "20", "1.00", "5.00", "9.00"}));
  const auto lines = Only<LineMark>(Graph.Shown.Picture);  // six ticks, then two of each signal
  ASSERT_EQ(lines.size(), 10);
  Plot("3");
  EXPECT_EQ(Only<LineMark>(Graph.Shown.Picture).size(), 12);
  ClearRows(Graph);
  EXPECT_EQ(Only<LineMark>(Graph.Shown.Picture).size(), 6);
  EXPECT_EQ(Graph.Shown.Title, "EMv & EMh versus Y for Row #3");
  EXPECT_EQ(Graph.Shown.Labels.txtMaxY, "9.00");
  LeaveLinePlots(Graph);
  EXPECT_EQ(Graph.Shown.Title, "Please use the Menu Bar to Select a Graph");
  EXPECT_EQ(Graph.Shown.Labels, AxisLabels{});
}

TEST_F(LinePlots, OfARowOfOneSiteDrawNothingAndHaveAMeanAlone)
{
  StartLinePlots(Graph, mnuLs1);
  Plot("2");
  EXPECT_EQ(Graph.Shown.Picture.Marks.size(), Plot::FrameMarks);
  EXPECT_EQ(Graph.Shown.Title, "EMv versus X for Row #2");
  ShowRowStats1(Graph, State, Dialogs);
  EXPECT_EQ(Graph.Shown.Statistics,
            (PlotStatistics{"EMv", "u= 3.000", "", "", "", "", "Corr(s1, x)", "", ""}));
}

TEST_F(LinePlots, TellOfARowThatIsNotThereAndKeepThePlot)
{
  StartLinePlots(Graph, mnuLs1);
  Plot("1");
  const auto shown = Graph.Shown.Picture;
  for (const char* row : {"0", "4", "99999999999", "abc", ""}) {
    Dialogs.Said.clear();
    Plot(row);
    EXPECT_THAT(Dialogs.Said, ElementsAre(NoSuchRow)) << row;
  }
  EXPECT_EQ(Graph.LinePanel.Text1, "0") << "what is no number";
  EXPECT_EQ(Graph.Shown.Picture, shown);
}

TEST_F(LinePlots, CutRowsWhereTheSurveyHasBecomeShorter)
{
  State.SurveySize = 2;
  StartLinePlots(Graph, mnuLs1);
  Plot("1");
  EXPECT_EQ(Graph.Shown.Sites.size(), 2);
  Plot("2");
  EXPECT_THAT(Dialogs.Said, ElementsAre(NoSuchRow));
}

TEST_F(LinePlots, ArrowsStepBetweenTheRowsAndCloseTheStatistics)
{
  StartLinePlots(Graph, mnuLs1);
  Plot("1");
  ShowRowStats1(Graph, State, Dialogs);
  const LinePanelState& panel = Graph.LinePanel;
  NextRow(Graph);
  EXPECT_EQ(panel.Text1, "2");
  EXPECT_TRUE(panel.Command1Enabled && panel.Command2Enabled);
  EXPECT_FALSE(Graph.Shown.StatisticsPanel || panel.Command6Enabled);
  NextRow(Graph);
  EXPECT_EQ(panel.Text1, "3");
  EXPECT_FALSE(panel.Command1Enabled);
  PreviousRow(Graph);
  EXPECT_TRUE(panel.Command1Enabled);
  PreviousRow(Graph);
  EXPECT_EQ(panel.Text1, "1");
  EXPECT_FALSE(panel.Command2Enabled);
  Graph.LinePanel.Text1 = "x";
  NextRow(Graph);
  EXPECT_EQ(panel.Text1, "1");
}

TEST_F(LinePlots, StatisticsOfBothSignalsStandBelowOneAnother)
{
  StartLinePlots(Graph, mnuLs1s2);
  Plot("1");
  ShowRowStats1(Graph, State, Dialogs);
  EXPECT_TRUE(Graph.LinePanel.Command7Enabled);
  // s1 1, 2, 5: mean 8/3, squares 25/9 + 4/9 + 49/9 = 78/9, std sqrt(78/18) = 2.082; with x: 20 of
  // sqrt(50 * 78/9), r = 0.9608. s2 3, 4, 5 rises evenly.
  EXPECT_EQ(Graph.Shown.Statistics,
            (PlotStatistics{"EMv", "u= 2.667", "s= 2.082", "", "", "", "Corr(s1, x)", "r= 0.9608", ""}));
  ShowRowStats2(Graph, State, Dialogs);
  EXPECT_EQ(Graph.Shown.Statistics, (PlotStatistics{"EMv", "u= 2.667", "s= 2.082", "EMh", "u= 4.000",
                                                    "s= 1.000", "s1 s2 Corr", "r= 0.9608", "r= 1.0000"}));
  EXPECT_FALSE(Graph.LinePanel.Command7Enabled);
}

TEST_F(LinePlots, RowNumbersAreTypedInDigits)
{
  EXPECT_TRUE(KeyInRow(U'7', Dialogs));
  EXPECT_TRUE(KeyInRow(8, Dialogs));
  EXPECT_FALSE(KeyInRow(U'-', Dialogs));
  EXPECT_THAT(Dialogs.Said, ElementsAre("beep"));
}

}  // namespace
}  // namespace veln
