#include "signal/decorrelation.h"

#include "support/surveys.h"
#include "support/testing.h"
#include "survey/statistics.h"

namespace veln {
namespace {

/// 0.707107 stands for 1 / sqrt(2), so that z1 and z2 are too wide by this factor, about 1.00000031.
const double Widening = 0.707107 * std::sqrt(2.0);

/// A survey whose two signals have the correlation `r`: s2 = r s1 + sqrt(1 - r x r) e, with e the part of a
/// random series that is uncorrelated with s1 and as wide.
SurveyState CorrelatedSurvey(double r)
{
  SurveyState state = ImportedSurvey(GridSurvey(40, 25));
  SteadyRandom random(7);
  std::vector<double>& s1 = state.Signal1;
  std::vector<double> e(s1.size());
  std::ranges::generate(e, [&random] { return random.Next(); });
  for (auto* series : {&s1, &e}) {
    const double mean = MeanStd(*series).Mean;
    std::ranges::transform(*series, series->begin(), [mean](double value) { return value - mean; });
  }
  const double slope = std::inner_product(e.begin(), e.end(), s1.begin(), 0.0) /
                       std::inner_product(s1.begin(), s1.end(), s1.begin(), 0.0);
  std::ranges::transform(e, s1, e.begin(), [slope](double own, double other) { return own - slope * other; });
  const double width = MeanStd(s1).Std / MeanStd(e).Std;
  std::ranges::transform(s1, e, state.Signal2.begin(),
                         [=](double u, double v) { return r * u + std::sqrt(1 - r * r) * width * v; });
  return state;
}

/// 51 sites of one signal with mean 0 and deviation exactly 1: 5, -5 and 49 zeros.
SurveyState FiveDeviations()
{
  RawSurvey survey = GridSurvey(51, 1, 1);
  std::ranges::fill(survey.Signal1, 0);
  survey.Signal1[10] = 5;
  survey.Signal1[50] = -5;
  return ImportedSurvey(survey);
}

TEST(Decorrelation, GivesMeanZeroDeviationOneAndNoCorrelation)
{
  for (const double r : {0.0, 0.5, -0.5, 0.99, -0.99, 0.99999, -0.99999, 0.9999999, -0.9999999, 1 - 1E-9}) {
    SurveyState state = CorrelatedSurvey(r);
    DecorrelateSignals(state, {});
    // An error of r in its last place moves z by 1 / (1 - |r|) times as much.
    const double bound = std::max(1E-9, 1E-14 / (1 - std::abs(r)));
    for (const auto* z : {&state.Decorr1, &state.Decorr2}) {
      EXPECT_NEAR(MeanStd(*z).Mean, 0, bound) << "r " << r;
      EXPECT_NEAR(MeanStd(*z).Std, Widening, bound) << "r " << r;
    }
    EXPECT_NEAR(Correlation(state.Decorr1, state.Decorr2).value(), 0, bound) << "r " << r;
  }
}

TEST(Decorrelation, FirstComponentIsTheSumWhateverTheSignAndTheDistanceIsMahalanobis)
{
  for (const double r : {0.8, 0.0, -0.8}) {
    SurveyState state = CorrelatedSurvey(r);
    DecorrelateSignals(state, {});
    const Moments first = MeanStd(state.Signal1);
    const Moments second = MeanStd(state.Signal2);
    for (std::size_t i = 0; i < 20; ++i) {
      const double u1 = (state.Signal1[i] - first.Mean) / first.Std;
      const double u2 = (state.Signal2[i] - second.Mean) / second.Std;
      EXPECT_NEAR(state.Decorr1[i] * std::sqrt(1 + r), (u1 + u2) * 0.707107, 1E-9);
      EXPECT_NEAR(state.Decorr2[i] * std::sqrt(1 - r), (u1 - u2) * 0.707107, 1E-9);
      const double mahalanobis = std::sqrt((u1 * u1 - 2 * r * u1 * u2 + u2 * u2) / (1 - r * r));
      EXPECT_NEAR(SignalDistance(state, i), mahalanobis * Widening, 1E-9);
    }
  }
}

TEST(Decorrelation, SiteAtALevelBelongsAboveIt)
{
  struct Case {
    DecorrelationLevels Levels;
    int Masked, Outliers;
    std::int16_t Status;
  };
  SurveyState state = FiveDeviations();
  for (const Case& expected :
       {Case{{500, 510}, 2, 0, 7}, Case{{450, 500}, 0, 2, 8}, Case{{500, 500}, 0, 2, 8},
        Case{{505, 510}, 0, 0, 0}, Case{{300, 600}, 2, 0, 7}}) {
    const DecorrelationCounts counts =
        DecorrelateSignals(state, expected.Levels);  // codes of the last run go
    EXPECT_EQ(counts.MaskedCount, expected.Masked);
    EXPECT_EQ(counts.OutlierCount, expected.Outliers);
    EXPECT_EQ(state.SiteStatus[10], expected.Status);
    EXPECT_EQ(state.SiteStatus[50], expected.Status);
    EXPECT_EQ(std::ranges::count(state.SiteStatus, 0), expected.Status == 0 ? 51 : 49);
  }
  EXPECT_EQ(state.Decorr1[50], -5);
  EXPECT_TRUE(state.Decorr2.empty());
}

TEST(Decorrelation, ShowsCountsAndMovesTheMenu)
{
  using enum MenuEntry;
  SurveyState state = FiveDeviations();
  state.Signal1[20] = 4;  // one masked site beside the two outliers
  state.DeletedSiteCount = 3;
  state.ValidationCount = 1;
  DecorrelateSignals(state, {300, 425});
  EXPECT_TRUE(state.Decorrelation == (DecorrelationFacts{{300, 425}, {1, 2}}));
  EXPECT_TRUE(state.DecorrDone && state.Menu.IsEnabled(mnuSigD) && state.Menu.IsEnabled(mnuSigV));
  EXPECT_FALSE(state.Menu.IsEnabled(mnuStats));
}

TEST(Decorrelation, RefusalNamesTheCauseAndLeavesTheRecordWhole)
{
  SurveyState state = ImportedSurvey(GridSurvey(10, 5));
  const auto refusal = [&state] { return WholeRefusalOf(state, [&] { DecorrelateSignals(state, {}); }); };
  for (const double factor : {2.0, -2.0}) {
    std::ranges::transform(state.Signal1, state.Signal2.begin(),
                           [factor](double s1) { return factor * s1 + 500; });
    EXPECT_THAT(refusal(), HasSubstr("perfectly correlated"));
  }
  std::ranges::fill(state.Signal2, 0.1);
  EXPECT_THAT(refusal(), HasSubstr("\"EMh\" is constant"));
  state.Signal1[0] = 1E+200;
  EXPECT_THAT(refusal(), HasSubstr("\"EMv\" holds values too large"));
  state.SignalCount = 1;
  std::ranges::fill(state.Signal1, 0.1);
  EXPECT_THAT(refusal(), HasSubstr("\"EMv\" is constant"));
  SurveyState empty;
  EXPECT_NE(WholeRefusalOf(empty, [&empty] { DecorrelateSignals(empty, {}); }), "not refused");
}

}  // namespace
}  // namespace veln
