#include "survey/statistics.h"

#include "support/surveys.h"
#include "support/testing.h"

namespace veln {
namespace {

using Series = std::vector<double>;

TEST(Statistics, OfOneTwoThreeAreTwoOneThree)
{
  const Moments moments = MeanStd(Series{1, 2, 3});
  EXPECT_EQ(moments.Mean, 2);
  EXPECT_EQ(moments.Std, 1);
  EXPECT_EQ(moments.Count, 3);
  EXPECT_NE(RefusalOf([] { MeanStd(Series{1}); }), "not refused");
}

TEST(Statistics, LimitsKeepTheirSentinelsWhenNoValueBeatsThem)
{
  const auto limits = [](const Series& series) {
    return std::pair(MinMax(series).Minimum, MinMax(series).Maximum);
  };
  EXPECT_EQ(limits({3, -2, 7}), std::pair(-2.0, 7.0));
  EXPECT_EQ(limits({}), std::pair(1E+24, -1E+24));
  EXPECT_EQ(limits({2E+24}), std::pair(1E+24, 2E+24));
  EXPECT_EQ(limits({-2E+24}), std::pair(-2E+24, -1E+24));
}

TEST(Statistics, CorrelationDoesNotDependOnOrderScaleOrShift)
{
  const Series x = {1, 2, 3};
  const Series y = {2, 4, 7};  // sums about the means: 2, 114 / 9, products 5
  const double r = 5 / std::sqrt(2 * 114.0 / 9);
  EXPECT_NEAR(Correlation(x, y).value(), r, 1E-15);
  EXPECT_NEAR(Correlation(y, x).value(), r, 1E-15);
  EXPECT_NEAR(Correlation(Series{-993, -986, -979}, y).value(), r, 1E-12);
  EXPECT_NEAR(Correlation(x, Series{2.98, 2.96, 2.93}).value(), -r, 1E-12);
}

TEST(Statistics, CorrelationIsUndefinedForConstantAndOverflowingSeries)
{
  const Series spread = {1, 2, 4};
  // The mean of ten times 0.1 is not 0.1 in doubles, so that the computed deviation is not 0.
  EXPECT_FALSE(Correlation(Series(10, 0.1), Series{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_FALSE(Correlation(spread, Series{1E+200, 2E+200, 4E+200}));
  EXPECT_FALSE(Correlation(spread, Series{1E-170, 2E-170, 4E-170}));
  EXPECT_FALSE(Correlation(Series{1E-100, 2E-100, 4E-100}, Series{1E-100, 2E-100, 3E-100}));
}

TEST(Statistics, OneSignalLeavesTheSecondRowAsItWas)
{
  SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  SignalPanel expected = state.Signals;
  EXPECT_EQ(expected.Correlation, Correlation(state.Signal1, state.Signal2));
  expected.Rows[0] = {"deep", {{4, 0, 50}, {4, 4}}};
  state.SignalCount = 1;
  state.SignalLabel[0] = "deep";
  state.Signal1.assign(50, 4);
  UpdateSignalStats(state);
  EXPECT_TRUE(state.Signals == expected);
}

}  // namespace
}  // namespace veln
