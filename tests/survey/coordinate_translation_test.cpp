#include "survey/coordinate_translation.h"

#include "support/refusals.h"
#include "support/surveys.h"
#include "survey/field_extent.h"

#include <gtest/gtest.h>

#include <vector>

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

TEST(CoordinateTranslation, HalfTurnMirrorsThroughTheMeanPointAndNoTurnIsExact)
{
  const SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  EXPECT_TRUE(Translated(state, Rotate, 0) == state);
  for (const int degrees : {180, -180}) {
    const SurveyState turned = Translated(state, Rotate, degrees);
    const SurveyState mirrored = Translated(Translated(state, ReverseX), ReverseY);
    ExpectNear(turned.CoordX, mirrored.CoordX);
    ExpectNear(turned.CoordY, mirrored.CoordY);
    EXPECT_NEAR(turned.CoordX[0], 90, 1E-12);
    EXPECT_NEAR(turned.CoordY[0], 40, 1E-12);
  }
}

TEST(CoordinateTranslation, AnyTurnKeepsDistancesMeansAndAllButTheCoordinates)
{
  const SurveyState state = ImportedSurvey(TransectSurvey(6, 20));
  for (const int degrees : {-137, -1, 30, 90, 179}) {
    SurveyState turned = Translated(state, Rotate, degrees);
    for (std::size_t i = 1; i < state.CoordX.size(); ++i) {
      EXPECT_NEAR(SiteDistance(turned, i, 0), SiteDistance(state, i, 0), 1E-10);
      EXPECT_NEAR(SiteDistance(turned, i, i - 1), SiteDistance(state, i, i - 1), 1E-10);
    }
    EXPECT_NEAR(MeanStd(turned.CoordX).Mean, MeanStd(state.CoordX).Mean, 1E-10);
    const SurveyState back = Translated(turned, Rotate, -degrees);
    ExpectNear(back.CoordX, state.CoordX);
    ExpectNear(back.CoordY, state.CoordY);
    turned.CoordX = state.CoordX;
    turned.CoordY = state.CoordY;
    turned.Orientation = {};
    EXPECT_TRUE(turned == state);
  }
}

TEST(CoordinateTranslation, MirroringTwiceRestoresTheCoordinates)
{
  const SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  for (const TranslationKind kind : {ReverseX, ReverseY}) {
    const SurveyState once = Translated(state, kind);
    EXPECT_EQ(once.CoordX[0], kind == ReverseX ? 90 : 0);
    EXPECT_EQ(once.CoordY[0], kind == ReverseY ? 40 : 0);
    EXPECT_TRUE(Translated(once, kind) == state);
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
