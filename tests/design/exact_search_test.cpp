#include "design/exact_search.h"

#include "support/testing.h"

#include <random>

namespace veln {
namespace {

using Candidates = std::vector<std::vector<FieldPosition>>;

/// Candidates strewn over a field of 300 by `height`.
Candidates RandomCandidates(unsigned seed, std::size_t points, std::size_t each, unsigned height)
{
  std::mt19937_64 random(seed);
  Candidates candidates(points, std::vector<FieldPosition>(each));
  for (auto& ofPoint : candidates) {
    for (FieldPosition& position : ofPoint) {
      position.X = static_cast<double>(random() % 3000) / 10;
      position.Y = static_cast<double>(random() % (10 * height)) / 10;
    }
  }
  return candidates;
}

/// The next choice as an odometer counts; false behind the last one.
bool Next(const SpreadProblem& problem, CandidateChoice& choice)
{
  for (std::size_t point = 0; point < choice.size(); ++point) {
    if (++choice[point] < problem.CandidatesOf(point)) {
      return true;
    }
    choice[point] = 0;
  }
  return false;
}

struct Enumerated {
  double LogSeparation = -1E300;
  double SmallestDistance = 0;
};

/// All plans looked at, those with sites nearer than `least` left out of the spread.
Enumerated Enumerate(const SpreadProblem& problem, double least)
{
  Enumerated best;
  CandidateChoice choice(problem.PointCount(), 0);
  do {
    const double smallest = problem.SmallestDistance(choice);
    best.SmallestDistance = std::max(best.SmallestDistance, smallest);
    if (smallest >= least) {
      best.LogSeparation = std::max(best.LogSeparation, problem.LogSeparation(choice));
    }
  } while (Next(problem, choice));
  return best;
}

TEST(ExactSearch, FindsWhatLookingAtAllPlansFinds)
{
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const bool large = seed % 8 == 0;
    const SpreadProblem problem(
        RandomCandidates(seed, large ? 8 : 5, large ? 3 : 3 + seed % 3, seed % 2 == 0 ? 300 : 20));
    SearchLimit limit;
    const auto greatest = GreatestSmallestDistance(problem, limit);
    ASSERT_EQ(greatest, Enumerate(problem, 0).SmallestDistance) << "seed " << seed;
    for (const double least : {0.0, *greatest}) {
      const auto spread = FindBestSpread(problem, std::nullopt, limit, least);
      ASSERT_TRUE(spread && spread->Proven) << "seed " << seed;
      ASSERT_NEAR(spread->LogSeparation, Enumerate(problem, least).LogSeparation, 1E-12) << "seed " << seed;
      ASSERT_GE(problem.SmallestDistance(spread->Best), least);
      ASSERT_EQ(spread->Bound, spread->LogSeparation);
    }
  }
}

// Three points on a line: the outer ones 10 apart, the middle one with a candidate in the middle and one on
// an end.
TEST(ExactSearch, HandlesPlansThatCanBeCheckedByEye)
{
  const SpreadProblem problem({{{0, 0}}, {{0, 0}, {5, 0}}, {{10, 0}}});
  EXPECT_EQ(problem.Combinations(), 2);
  EXPECT_DOUBLE_EQ(problem.LogSeparation({0, 1, 0}), std::log(5.000001));
  SearchLimit limit;
  EXPECT_EQ(FindBestSpread(problem, std::nullopt, limit)->Best, (CandidateChoice{0, 1, 0}));
  EXPECT_EQ(GreatestSmallestDistance(problem, limit), 5);
  EXPECT_FALSE(FindBestSpread(problem, std::nullopt, limit, 5.1));
}

TEST(ExactSearch, KeepsThePlanGivenAmongEquals)
{
  const SpreadProblem problem({{{0, 0}, {0, 10}}, {{10, 0}, {10, 10}}});
  SearchLimit limit;
  for (const CandidateChoice& diagonal : {CandidateChoice{0, 1}, CandidateChoice{1, 0}}) {
    EXPECT_EQ(FindBestSpread(problem, diagonal, limit)->Best, diagonal);
  }
}

TEST(ExactSearch, LimitEndsItWithABoundThatHolds)
{
  const SpreadProblem problem(RandomCandidates(7, 9, 3, 300));
  SearchLimit none{0};
  const auto open = FindBestSpread(problem, std::nullopt, none);
  ASSERT_TRUE(open);
  EXPECT_FALSE(open->Proven);
  EXPECT_GE(open->Bound, Enumerate(problem, 0).LogSeparation);
  EXPECT_EQ(GreatestSmallestDistance(problem, none), std::nullopt);
}

}  // namespace
}  // namespace veln
