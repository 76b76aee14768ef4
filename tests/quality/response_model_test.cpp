#include "quality/response_model.h"

#include "support/testing.h"

#include <cmath>

namespace veln {
namespace {

/// Survey of z1 and z2 alone, all sites available.
struct SignalCloud {
  std::vector<double> Z1, Z2;

  [[nodiscard]] SurveyFacts Facts() const
  {
    SurveyFacts facts;
    facts.Z1 = Z1;
    facts.Z2 = Z2;
    for (std::size_t i = 0; i < Z1.size(); ++i) {
      facts.Available.push_back(i);
    }
    return facts;
  }
};

/// The nine combinations of -1, 0 and 1, behind one another; the centre is the fifth, a corner the first.
const SignalCloud Factorial = {{-1, -1, -1, 0, 0, 0, 1, 1, 1}, {-1, 0, 1, -1, 0, 1, -1, 0, 1}};

// Three levels of one signal: X'X is diag(3, 2), its determinant 6.
TEST(ResponseModel, LineOfThreeLevels)
{
  const SignalCloud line{{-1, 0, 1, 3}, {}};
  const SurveyFacts facts = line.Facts();
  const ResponseModel model(facts, 3);
  ASSERT_EQ(model.TermCount(), 2U);
  const std::vector<std::size_t> plan = {0, 1, 2};
  const auto factor = Factor(model.Information(plan), 2);
  ASSERT_TRUE(factor);
  EXPECT_DOUBLE_EQ(DEfficiency(*factor, 2, 3), std::sqrt(6.0) / 3);
  EXPECT_DOUBLE_EQ(PredictionVariance(*factor, 2, model.At(3)), 1.0 / 3 + 9.0 / 2);
  // Over all four sites: 1/3 + (1 + 0 + 1 + 9) / 2 / 4.
  EXPECT_DOUBLE_EQ(MeanPredictionVariance(*factor, 2, model.Information(facts.Available), 4),
                   1.0 / 3 + 11.0 / 8);
}

// The full quadratic model in a three-level factorial of two factors: X'X has the determinant 36 x 6 x 6 x 4;
// the variance of prediction is 5/9 at the centre and 29/36 at a corner, as textbooks on response surfaces
// tell.
TEST(ResponseModel, ThreeLevelFactorial)
{
  SurveyFacts facts = Factorial.Facts();
  const ResponseModel model(facts, 10);
  ASSERT_EQ(model.TermCount(), 6U);
  const auto factor = Factor(model.Information(facts.Available), 6);
  ASSERT_TRUE(factor);
  EXPECT_NEAR(DEfficiency(*factor, 6, 9), std::pow(36.0 * 6 * 6 * 4, 1.0 / 6) / 9, 1E-14);
  EXPECT_NEAR(PredictionVariance(*factor, 6, model.At(4)), 5.0 / 9, 1E-14);
  EXPECT_NEAR(PredictionVariance(*factor, 6, model.At(0)), 29.0 / 36, 1E-14);
  // Over a plan's own sites the variances sum up to the number of terms.
  EXPECT_NEAR(MeanPredictionVariance(*factor, 6, model.Information(facts.Available), 9), 6.0 / 9, 1E-14);
}

TEST(ResponseModel, SizeAndSignalsDecideTheTerms)
{
  const SurveyFacts two = Factorial.Facts();
  const SignalCloud line{{1, 2}, {}};
  const SurveyFacts one = line.Facts();
  EXPECT_EQ(ResponseModel(two, 9).TermCount(), 3U);
  EXPECT_EQ(ResponseModel(one, 9).TermCount(), 2U);
  EXPECT_EQ(ResponseModel(one, 10).TermCount(), 3U);
}

TEST(ResponseModel, SitesOnALineAreSingular)
{
  const SignalCloud cloud{{0.1, 0.2, 0.3, 0.7}, {0.3, 0.6, 0.9, 2.1}};
  const SurveyFacts facts = cloud.Facts();
  EXPECT_FALSE(Factor(ResponseModel(facts, 4).Information(facts.Available), 3));
}

}  // namespace
}  // namespace veln
