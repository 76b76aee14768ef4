#include "signal/transition_analysis.h"

#include "support/testing.h"

namespace veln {
namespace {

/// One row of sites 10 m apart with these z1.
SurveyState RowOf(const std::vector<double>& z1)
{
  SurveyState state;
  state.Decorr1 = z1;
  for (std::size_t i = 0; i < z1.size(); ++i) {
    state.SiteId.push_back(static_cast<std::int16_t>(i + 1));
    state.CoordX.push_back(10.0 * static_cast<double>(i));
  }
  state.CoordY.assign(z1.size(), 7);
  state.RowNumber.assign(z1.size(), 1);
  return state;
}

std::vector<double> Scores(const SurveyState& state)
{
  return TrnsAlys(state, InitRows(state.RowNumber));
}

TEST(TransitionAnalysis, RowOfElevenSitesHasFiveScoresAndSixCopies)
{
  const double left = std::sqrt((36.0 + 9.0) / 6);  // sites 4 and 5 see the 6 and the 3
  const double right = std::sqrt(9.0 / 6);          // sites 7 and 8 see the 3 alone
  EXPECT_THAT(Scores(RowOf({0, 6, 0, 0, 0, 3, 0, 0, 0, 0, 0})),
              ElementsAreArray({left, left, left, left, left, 3.0, right, right, right, right, right}));
}

TEST(TransitionAnalysis, RowOfTenSitesIsNotScored)
{
  SurveyState state = RowOf(std::vector<double>(21, 0.3));
  std::fill(state.RowNumber.begin() + 11, state.RowNumber.end(), 2);
  std::vector<double> expected(11, 0.0);
  expected.resize(21, 1.5);
  EXPECT_THAT(Scores(state), ElementsAreArray(expected));
}

TEST(TransitionAnalysis, DoubleSpacingPassesAndMoreDoesNot)
{
  SurveyState state = RowOf(std::vector<double>(11, 0.3));
  const std::vector<double> thinning = {0,  20,  40,  60,  70, 80,
                                        90, 100, 110, 120, 130};  // site 4: 60 behind, 30 ahead
  state.CoordX = thinning;
  EXPECT_THAT(Scores(state), Each(0.0));
  std::ranges::reverse(state.CoordX);
  EXPECT_THAT(Scores(state), Each(0.0));
  state.CoordX = thinning;
  state.CoordX[0] = -0.01;
  EXPECT_THAT(Scores(state), ElementsAreArray({1.5, 1.5, 1.5, 1.5, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0}));
  std::ranges::reverse(state.CoordX);
  EXPECT_THAT(Scores(state), ElementsAreArray({0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 1.5, 1.5, 1.5, 1.5}));
}

TEST(TransitionAnalysis, DuplicatePointsPassUnlessOnOneSideOnly)
{
  SurveyState state = RowOf(std::vector<double>(11, 0.3));
  state.CoordX.assign(11, 4);
  EXPECT_THAT(Scores(state), Each(0.0));
  std::iota(state.CoordX.begin() + 4, state.CoordX.end(), 5);
  EXPECT_EQ(Scores(state)[3], 1.5);
}

TEST(TransitionAnalysis, GapInTheNumbersSpoilsThreeSitesOnEitherSide)
{
  SurveyState state = RowOf(std::vector<double>(20, 0.3));
  for (std::size_t i = 10; i < 20; ++i) {
    ++state.SiteId[i];
  }
  std::vector<double> expected(20, 0.0);
  std::fill(expected.begin() + 7, expected.begin() + 13, 1.5);
  EXPECT_THAT(Scores(state), ElementsAreArray(expected));
}

TEST(TransitionAnalysis, ScoreOfExactlyOneIsNotHigh)
{
  EXPECT_EQ(CountHighTVSites({1.0, 1.0000001, 1.5, 0.999}), 2);
}

TEST(TransitionAnalysis, FileHasALineForEachSite)
{
  SurveyState state;
  state.FieldId = "ab12";
  state.SiteId = {12, -3};
  state.CoordX = {345.1, -0.00004};
  state.CoordY = {20, 12.34565};
  state.TransitionScore = {1.5, 0.123456};
  EXPECT_EQ(ComposeTransitionFile(state),
            "Transition Standard Deviations for Field ID: ab12\r\n"
            " 12   345.1  20.0  1.50\r\n"
            "-3   0.0  12.3457  0.1235\r\n");
}

}  // namespace
}  // namespace veln
