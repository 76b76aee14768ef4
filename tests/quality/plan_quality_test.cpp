#include "quality/plan_quality.h"

#include "quality/reading_check.h"
#include "support/testing.h"

#include <cmath>
#include <numbers>
#include <random>

namespace veln {
namespace {

/// A field of rows, 20 sites each, with signals drawn at random.
struct RandomField {
  std::vector<std::int16_t> SiteId, Row;
  std::vector<double> X, Y, Z1, Z2;

  explicit RandomField(std::size_t sites)
  {
    std::mt19937_64 random(9);
    const auto unit = [&random] { return static_cast<double>(random() % 10000) / 10000; };
    for (std::size_t i = 0; i < sites; ++i) {
      SiteId.push_back(static_cast<std::int16_t>(i + 1));
      Row.push_back(static_cast<std::int16_t>(i / 20 + 1));
      X.push_back(static_cast<double>(i / 20) * 10);
      Y.push_back(static_cast<double>(i % 20) * 5);
      const double r = std::sqrt(-2 * std::log(unit() + 1E-9));
      const double turn = 2 * std::numbers::pi * unit();
      Z1.push_back(r * std::cos(turn));
      Z2.push_back(r * std::sin(turn));
    }
  }

  [[nodiscard]] SurveyFacts Facts() const
  {
    SurveyFacts facts;
    facts.SiteId = SiteId;
    facts.X = X;
    facts.Y = Y;
    facts.Z1 = Z1;
    facts.Z2 = Z2;
    facts.S1 = Z1;
    facts.S2 = Z2;
    facts.SignalStd = {1, 2};
    facts.Row = Row;
    for (std::size_t i = 0; i < X.size(); ++i) {
      facts.Available.push_back(i);
    }
    return facts;
  }
};

Plan ManualPlan(const std::vector<std::size_t>& sites)
{
  Plan plan;
  for (const std::size_t site : sites) {
    plan.Sites.push_back({site, 0, std::nullopt});
  }
  return plan;
}

std::vector<std::size_t> Spread(std::size_t count, std::size_t step)
{
  std::vector<std::size_t> sites;
  for (std::size_t i = 0; i < count; ++i) {
    sites.push_back(i * step);
  }
  return sites;
}

TEST(PlanQuality, MissesAreDistancesInSignalSpace)
{
  const std::vector<double> z1 = {1, 1, 0.5};
  const std::vector<double> z2 = {0.3, 2, 0};
  const std::vector<double> x = {0, 3, 0};
  const std::vector<double> y = {0, 0, 4};
  SurveyFacts facts;
  facts.X = x;
  facts.Y = y;
  facts.Z1 = z1;
  facts.Z2 = z2;
  facts.Available = {0, 1, 2};
  Plan plan;
  plan.Sites = {{0, 1, std::array{1.0, 0.0}}, {1, 2, std::array{0.7, 2.4}}, {2, 0, std::nullopt}};
  const PlanFigures two = MeasurePlan(facts, plan);
  ASSERT_TRUE(two.Targets);
  EXPECT_EQ(two.Targets->Targets, 2);
  EXPECT_EQ(two.Targets->Missed, 1);  // 0.3 itself does not count
  EXPECT_EQ(two.Targets->WorstPoint, 2);
  EXPECT_DOUBLE_EQ(two.Targets->WorstMiss, 0.5);
  EXPECT_EQ(two.Misses[2], std::nullopt);
  facts.Z2 = {};
  EXPECT_DOUBLE_EQ(MeasurePlan(facts, plan).Targets->WorstMiss, 0.3);
}

// A row of seven sites; the median of the six around the middle one is 3.5, of the five behind the first
// one 4.
TEST(PlanQuality, ReadingsAreHeldAgainstTheirNeighboursInTheRow)
{
  const std::vector<double> s1 = {100, 1, 2, 3, 50, 4, 5, 6, 100, 7, 8, 9, 1};
  const std::vector<double> s2 = {0, 0, 0, 0, 10, 0, 0, 0, 0, 0, 0, 0, 0};
  const std::vector<std::int16_t> rows = {1, 2, 2, 2, 2, 2, 2, 2, 3, 4, 4, 4, 4};
  SurveyFacts facts;
  facts.S1 = s1;
  facts.SignalStd = {10, 1};
  facts.Row = rows;
  EXPECT_DOUBLE_EQ(*ReadingDifference(facts, 4), 4.65);
  EXPECT_DOUBLE_EQ(*ReadingDifference(facts, 1), 0.35);  // 2, 3, 50, 4, 5, 6 behind it
  EXPECT_EQ(ReadingDifference(facts, 0), std::nullopt);
  EXPECT_EQ(ReadingDifference(facts, 9), std::nullopt);  // three neighbours
  facts.S2 = s2;
  facts.Z2 = s2;
  EXPECT_DOUBLE_EQ(*ReadingDifference(facts, 4), 10);
  facts.Row = {};
  EXPECT_EQ(ReadingDifference(facts, 4), std::nullopt);
}

TEST(PlanQuality, ReadingsReachSixSitesAndNoFurther)
{
  std::vector<double> s1(15, 0);
  const std::vector<std::int16_t> row(15, 1);
  SurveyFacts facts;
  facts.SignalStd = {1, 1};
  facts.Row = row;
  // Of the seven on either side only the six nearest are asked: with those at 1 the median is 1.
  for (std::size_t i = 1; i < 14; ++i) {
    s1[i] = i == 7 ? 3 : 1;
  }
  s1[0] = s1[14] = 1000;
  facts.S1 = s1;
  EXPECT_DOUBLE_EQ(*ReadingDifference(facts, 7), 2);
}

TEST(PlanQuality, RandomPlansDrawEachSiteOnceAndAllOfThem)
{
  RandomPlans random({3, 5, 8, 13});
  std::vector<int> drawn(14, 0);
  for (int i = 0; i < 400; ++i) {
    const auto sites = random.Draw(2);
    ASSERT_NE(sites[0], sites[1]);
    ++drawn[sites[0]];
    ++drawn[sites[1]];
  }
  for (const std::size_t site : {3, 5, 8, 13}) {
    EXPECT_NEAR(drawn[site], 200, 45) << site;
  }
}

TEST(PlanQuality, APlanStandsAmongRandomOnesByItsWorth)
{
  const RandomField field(400);
  const SurveyFacts facts = field.Facts();
  // The twelve sites nearest to the centre of the signals tell next to nothing; a large plan tells more.
  std::vector<std::size_t> central = facts.Available;
  std::ranges::sort(central, {}, [&](std::size_t i) { return std::hypot(field.Z1[i], field.Z2[i]); });
  central.resize(12);
  const Plan poor = ManualPlan(central);
  const PlanFigures poorFigures = MeasurePlan(facts, poor);
  const PlanStanding poorStanding = RankPlan(facts, poor, poorFigures);
  EXPECT_EQ(poorStanding.Equivalent->Sites, 12U);
  EXPECT_EQ(poorStanding.Chance->Plans, 1000);

  // Those nearest to the corners, the axes and the middle of a pattern of targets.
  std::vector<std::size_t> pattern;
  for (const auto& [t1, t2] : std::vector<std::pair<double, double>>{{1.75, 1.75},
                                                                     {-1.75, -1.75},
                                                                     {1.75, -1.75},
                                                                     {-1.75, 1.75},
                                                                     {2.5, 0},
                                                                     {-2.5, 0},
                                                                     {0, 2.5},
                                                                     {0, -2.5},
                                                                     {0.75, 0},
                                                                     {-0.75, 0},
                                                                     {0, 0.3},
                                                                     {0, -0.3}}) {
    pattern.push_back(*std::ranges::min_element(
        facts.Available, {}, [&](std::size_t i) { return std::hypot(field.Z1[i] - t1, field.Z2[i] - t2); }));
  }
  const Plan good = ManualPlan(pattern);
  const PlanFigures figures = MeasurePlan(facts, good);
  EXPECT_GT(figures.Model->DEfficiency, poorFigures.Model->DEfficiency);
  const PlanStanding standing = RankPlan(facts, good, figures);
  EXPECT_GT(*standing.Equivalent->Sites, 12U);
  EXPECT_EQ(*standing.Equivalent->Sites % 2, 0U);
  EXPECT_EQ(standing.Chance->Both, 0);
  EXPECT_FALSE(standing.Proof);
}

TEST(PlanQuality, WhatHasNoModelHasNoStanding)
{
  const RandomField field(400);
  const SurveyFacts facts = field.Facts();
  const Plan two = ManualPlan({3, 90});
  const PlanFigures figures = MeasurePlan(facts, two);
  EXPECT_FALSE(figures.Model);
  EXPECT_FALSE(RankPlan(facts, two, figures).Equivalent);
  const Plan large = ManualPlan(Spread(201, 1));
  EXPECT_FALSE(RankPlan(facts, large, MeasurePlan(facts, large)).Chance);
  const Plan one = ManualPlan({7});
  EXPECT_FALSE(MeasurePlan(facts, one).Spread);
}

// Two target points on a line, the nearer pair chosen: 3 where 6 was possible.
TEST(PlanQuality, CertificateTellsTheLoss)
{
  Plan plan = ManualPlan({0, 1});
  plan.Candidates = {{{0, 0}, {-3, 0}}, {{3, 0}}};
  plan.Chosen = {0, 0};
  plan.TargetSeparation = 12;
  const auto proof = Certify(plan);
  ASSERT_TRUE(proof);
  EXPECT_TRUE(proof->Proven);
  EXPECT_FALSE(proof->IsBest());
  EXPECT_EQ(proof->Combinations, 2);
  EXPECT_NEAR(proof->PercentBelow, 100, 1E-4);
  EXPECT_NEAR(proof->OptCriteria, 4, 1E-5);
  EXPECT_NEAR(proof->BestOptCriteria, 2, 1E-5);
  EXPECT_EQ(proof->GreatestSmallestDistance, 6);
  plan.Chosen = {1, 0};
  EXPECT_TRUE(Certify(plan)->IsBest());
}

}  // namespace
}  // namespace veln
