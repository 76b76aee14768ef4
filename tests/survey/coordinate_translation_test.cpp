#include "survey/coordinate_translation.h"

#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

using enum TranslationKind;

SurveyState Translated(SurveyState state, TranslationKind kind, int degrees = 0)
{
  TranslateCoordinates(state, {kind, degrees});
  return state;
}

void ExpectNear(const std::vector<double>& found, const std::vector<double>& expected)
{
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(found.at(i), expected[i], 1E-9) << "site " << i;
  }
}

TEST(CoordinateTranslation, SwapExchangesTheAxesAndNothingElse)
{
  SurveyState expected = ImportedSurvey(TransectSurvey(5, 20));
  const SurveyState swapped = Translated(expected, Swap);
  std::swap(expected.CoordX, expected.CoordY);
  expected.Orientation = {-90, true};
  EXPECT_TRUE(swapped == expected);
}

TEST(CoordinateTranslation, KeepsAccountOfTurnsAndMirrors)
{
  SurveyState state = ImportedSurvey(TransectSurvey(5, 20));
  const auto apply = [&state](TranslationKind kind, int degrees = 0) {
    TranslateCoordinates(state, {kind, degrees});
    return state.Orientation.AsSurveyed();
  };
  EXPECT_FALSE(apply(TranslationKind::Rotate, 120));
  EXPECT_FALSE(apply(TranslationKind::Swap));
  EXPECT_FALSE(apply(TranslationKind::Swap));
  EXPECT_TRUE(apply(TranslationKind::Rotate, -120));
  EXPECT_FALSE(apply(TranslationKind::ReverseX));
  EXPECT_FALSE(apply(TranslationKind::ReverseY)) << "a half turn";
  EXPECT_TRUE(apply(TranslationKind::Rotate, 180));
}

TEST(CoordinateTranslation, QuarterTurnIsCounterClockwiseAboutTheMeanPoint)
{
  const SurveyState state = ImportedSurvey(GridSurvey(10, 5));  // x 0 to 90, y 0 to 40: mean point 45, 20
  const SurveyState turned = Translated(state, Rotate, 90);
  for (std::size_t i = 0; i < state.CoordX.size(); ++i) {
    EXPECT_NEAR(turned.CoordX[i], 45 - (state.CoordY[i] - 20), 1E-12);
    EXPECT_NEAR(turned.CoordY[i], 20 + (state.CoordX[i] - 45), 1E-12);
  }
}

TEST(CoordinateTranslation, HalfTurnMirrorsBothAxesAndNoTurnIsExact)
{
  const SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  EXPECT_TRUE(Translated(state, Rotate, 0) == state);
  const SurveyState once = Translated(state, ReverseX);
  EXPECT_EQ(std::pair(once.CoordX[0], once.CoordY[0]), std::pair(90.0, 0.0));
  EXPECT_TRUE(Translated(once, ReverseX) == state);
  const SurveyState mirrored = Translated(once, ReverseY);
  EXPECT_EQ(mirrored.CoordY[0], 40);
  for (const int degrees : {180, -180}) {
    const SurveyState turned = Translated(state, Rotate, degrees);
    ExpectNear(turned.CoordX, mirrored.CoordX);
    ExpectNear(turned.CoordY, mirrored.CoordY);
  }
}

TEST(CoordinateTranslation, IsRefusedBeforeImportAndBeyondTheDoubles)
{
  SurveyState empty;
  EXPECT_NE(WholeRefusalOf(empty, [&] { TranslateCoordinates(empty, {Swap}); }), "not refused");
  SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  state.CoordX[0] = state.CoordX[1] = 1.5E+308;  // their sum has no mean
  for (const TranslationKind kind : {Rotate, ReverseX}) {
    EXPECT_NE(WholeRefusalOf(state, [&] { TranslateCoordinates(state, {kind, 30}); }), "not refused");
  }
}

}  // namespace
}  // namespace veln
