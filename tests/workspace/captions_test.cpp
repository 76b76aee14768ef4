#include "workspace/captions.h"

#include "support/testing.h"

namespace veln {
namespace {

TEST(Captions, SignalStatisticsHaveThreeDecimalsAndTheirCorrelationFour)
{
  const auto row = [](const SignalFacts& signal) {
    const SignalTexts texts = TextsOf(signal);
    return texts.LblNm + "|" + texts.LblSz + "|" + texts.LblMu + "|" + texts.LblStd + "|" + texts.LblMn +
           "|" + texts.LblMx;
  };
  EXPECT_EQ(row({"EMh", {{-0.0004, 13.0 / 3, 1498}, {.5, 7.0625}}}), "EMh|1498|0.000|4.333|0.500|7.063");
  EXPECT_EQ(row({"EMh", {}}), "EMh|||||");
  EXPECT_EQ(PanelCorrelation({{}, 0.99335}), "0.9934");
  EXPECT_EQ(PanelCorrelation({}), "");
}

TEST(Captions, MaskingCountsTheOutliersToo)
{
  SurveyState state;
  state.Decorrelation = {{300, 425}, {10, 3}};
  state.DeletedSiteCount = 2;
  state.ValidationCount = 1;
  const auto panel = [&state] {
    const DecorrelationTexts texts = DecorrelationTextsOf(state);
    return texts.Lblmstd + "|" + texts.Lblmstdcnt + "|" + texts.Lblostd + "|" + texts.Lblostdcnt + "|" +
           texts.LblDcnt + "|" + texts.LblVcnt;
  };
  EXPECT_EQ(panel(), "|||||");
  state.DecorrDone = true;
  EXPECT_EQ(panel(), "3.00|13|4.25|3|2|1");
}

TEST(Captions, DesignsShowOnceTheyHaveASize)
{
  EXPECT_EQ(TextsOf(DesignFacts{12, 0.975}).Lblssn + TextsOf(DesignFacts{12, 0.975}).Lblssoc, " 12 .98");
  EXPECT_EQ(TextsOf(DesignFacts{}).Lblssn + TextsOf(DesignFacts{}).Lblssoc, "");
}

}  // namespace
}  // namespace veln
