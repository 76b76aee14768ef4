#include "logger/cleaning.h"

#include "support/refusals.h"
#include "tracks.h"

#include <gmock/gmock.h>

#include <limits>

namespace veln {
namespace {

/// Readings at these x, y 0.
TestTrack Along(const std::vector<double>& xs)
{
  TestTrack track;
  for (const double x : xs) {
    track.Add(x, 0);
  }
  return track;
}

TEST(Jumps, UpToFiveFixesThatComeBack)
{
  struct Case {
    std::vector<double> Xs;
    const char* Fates;
  };
  for (const Case& one :
       std::vector<Case>{{{0, 1, 50, 2, 3}, "..J.."},
                         {{0, 1, 50, 50, 50, 2, 3}, "..JJJ.."},                 // one fix, read three times
                         {{0, 1, 50, 51, 52, 53, 54, 2, 3}, "..JJJJJ.."},       // five fixes
                         {{0, 1, 50, 51, 52, 53, 54, 55, 2, 3}, ".........."},  // six are another place
                         {{0, 1, 50, 51, 52}, "....."},                         // never comes back
                         {{0, 1, 50, 30, 2}, "..JJ."},                          // two far ones
                         {{0, 1, 12, 5, 6}, "....."},      // far from the one before alone
                         {{0, 11.5, 1, 50, 2}, ".J.J."},   // again, after coming back
                         {{50, 1, 2, 3}, "...."},          // no fix before it
                         {{0, 10, 0, 10, 0}, "....."}}) {  // exactly the distance is within it
    TestTrack track = Along(one.Xs);
    Track work = track.InWork();
    DropJumps(work, 10);
    EXPECT_EQ(track.FateLetters(), one.Fates) << testing::PrintToString(one.Xs);
  }
}

TEST(Jumps, DistanceFollowsTheMedianStep)
{
  EXPECT_EQ(JumpDistance(Along({0, 1, 2, 3}).Points, std::nullopt), 10);
  EXPECT_EQ(JumpDistance(Along({0, 4, 4, 8, 11, 100}).Points, std::nullopt), 20);  // steps 4 4 3 89, median 4
  EXPECT_EQ(JumpDistance(Along({0, 4}).Points, 0), 0);
  EXPECT_EQ(JumpDistance({}, std::nullopt), 10);
  TestTrack track = Along({0, 1, 500, 2});
  Track work = track.InWork();
  DropJumps(work, 0);
  EXPECT_EQ(track.FateLetters(), "....");
}

TEST(Lag, ReadingsGoWhereTheSensorWas)
{
  Readings readings;
  readings.Files.resize(1);
  TestTrack track = Along({0, 0, 2, 4, 10});
  Track work = track.InWork();
  ShiftByLag(work, 1.5, readings);
  EXPECT_EQ(track.FateLetters(), "??...");
  ASSERT_EQ(track.Points.size(), 3);
  EXPECT_DOUBLE_EQ(track.Points[0].X, 0);  // at 0.5 s
  EXPECT_DOUBLE_EQ(track.Points[1].X, 1);  // at 1.5 s
  EXPECT_DOUBLE_EQ(track.Points[2].X, 3);  // at 2.5 s
}

TEST(Lag, NeedsTimes)
{
  Readings readings;
  readings.Files.resize(1);
  TestTrack track = Along({0, 1});
  for (TrackPoint& point : track.Points) {
    point.Time = std::numeric_limits<double>::quiet_NaN();
  }
  Track work = track.InWork();
  EXPECT_EQ(RefusalOf([&] { ShiftByLag(work, 1, readings); }),
            "--lag needs times, and the files tell none; tell --time if a column holds them.");
}

TEST(Offset, FollowsTheHeading)
{
  TestTrack track = TrackThrough({{0, 0}, {20, 0}, {20, 20}});
  Track work = track.InWork();
  ShiftByOffset(work, {2, 1});
  EXPECT_NEAR(track.Points[5].X, 7, 1E-9);  // east: forward is x, right is -y
  EXPECT_NEAR(track.Points[5].Y, -1, 1E-9);
  EXPECT_NEAR(track.Points[0].X, 2, 1E-9);
  EXPECT_NEAR(track.Points[35].X, 21, 1E-9);  // north: forward is y, right is x
  EXPECT_NEAR(track.Points[35].Y, 17, 1E-9);
}

TEST(Offset, StandingKeepsTheLastHeading)
{
  TestTrack track = Along({0, 1, 2, 3, 4, 5, 6, 7, 8});
  for (int i = 0; i < 400; ++i) {
    track.Add(8 + (i % 2) * 0.05, 0.05 * (i % 3));
  }
  Track work = track.InWork();
  ShiftByOffset(work, {0, 3});
  for (std::size_t i = 100; i < 300; ++i) {
    EXPECT_NEAR(track.Points[i].Y, -3, 0.5);
  }
}

TEST(Values, BoundaryExclusionAndInset)
{
  const Polygon field({{{0, -5}, {10, -5}, {10, 5}, {0, 5}}, {{4, -1}, {6, -1}, {6, 1}, {4, 1}}});
  const Polygon pond({{{7.5, -1}, {8.5, -1}, {8.5, 1}, {7.5, 1}}});
  const auto fates = [&](double inset) {
    TestTrack track = Along({-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    Track work = track.InWork();
    DropOutside(work, {field}, {pond}, inset);
    return track.FateLetters();
  };
  EXPECT_EQ(fates(0), "O.....O..X..O");
  EXPECT_EQ(fates(1.5), "OOO.OOOOOXOOO");
}

TEST(Values, ZeroOrLessIsKeptDroppedOrRefused)
{
  Readings readings;
  readings.Files.resize(1);
  readings.Files[0].Path = "f.csv";
  readings.SignalCount = 2;
  readings.Labels = {"a", "b"};
  readings.Lines = {2, 3, 4};
  const auto judge = [&](NonPositive choice) {
    TestTrack track = Along({0, 1, 2});
    track.Points[0].Signals[1] = 5;
    track.Points[1].Signals[1] = 0;
    track.Points[2].Signals[1] = -0.5;
    Track work = track.InWork();
    JudgeNonPositive(work, choice, readings);
    return track.FateLetters();
  };
  EXPECT_EQ(judge(NonPositive::Keep), "...");
  EXPECT_EQ(judge(NonPositive::Drop), ".00");
  EXPECT_EQ(
      RefusalOf([&] { judge(NonPositive::Refuse); }),
      "f.csv, line 3, column \"b\": 0 is 0 or less; --nonpositive drop leaves such readings out, keep takes "
      "them.");
}

struct RepeatCase {
  double Still;
  Repeats How;
  const char* Fates;
  std::vector<double> Xs, Signals;
};

TEST(Repeats, ReadingsJoinTheSiteInWork)
{
  // Each lies less than 0.2 m from the one before; the fourth lies farther from the site's first.
  const std::vector<double> xs = {0, 0.004, 0.12, 0.24, 0.30, 5, 0};
  for (const RepeatCase& one : std::vector<RepeatCase>{
           {0.20, Repeats::Mean, ".++.+..", {0.124 / 3, 0.27, 5, 0}, {2, 4.5, 6, 7}},
           {0.20, Repeats::First, ".++.+..", {0, 0.24, 5, 0}, {1, 4, 6, 7}},
           {0.20, Repeats::All, ".+.....", {0.002, 0.12, 0.24, 0.30, 5, 0}, {1.5, 3, 4, 5, 6, 7}},
           {0, Repeats::Mean, ".+.....", {0.002, 0.12, 0.24, 0.30, 5, 0}, {1.5, 3, 4, 5, 6, 7}}}) {
    TestTrack track = Along(xs);
    Track work = track.InWork();
    JoinRepeats(work, one.Still, one.How);
    EXPECT_EQ(track.FateLetters(), one.Fates);
    ASSERT_EQ(track.Points.size(), one.Xs.size());
    for (std::size_t i = 0; i < one.Xs.size(); ++i) {
      EXPECT_NEAR(track.Points[i].X, one.Xs[i], 1E-12);
      EXPECT_NEAR(track.Points[i].Signals[0], one.Signals[i], 1E-12);
    }
  }
}

TEST(Repeats, SitesKeepTheFirstTimeAndKnowHowLongTheyTook)
{
  TestTrack track = Along({0, 0, 0, 5});
  Track work = track.InWork();
  JoinRepeats(work, 0.2, Repeats::Mean);
  EXPECT_EQ(track.Points[0].Time, 0);
  EXPECT_EQ(track.Points[0].Dwell, 2);
  EXPECT_EQ(track.Points[0].Last, 2U);
  EXPECT_FALSE(IsGap(track.Points[0], track.Points[1]));
}

TEST(Median, StaysWithinItsRow)
{
  TestTrack track = Along({0, 1, 2, 3, 4, 5});
  const std::vector<double> signals = {1, 9, 2, 8, 3, 7};
  for (std::size_t i = 0; i < signals.size(); ++i) {
    track.Points[i].Signals[0] = signals[i];
    track.Points[i].Row = i < 4 ? 1 : 2;
  }
  SmoothByMedian(track.Points, 1, 3);
  std::vector<double> smooth;
  for (const TrackPoint& point : track.Points) {
    smooth.push_back(point.Signals[0]);
  }
  EXPECT_THAT(smooth, testing::ElementsAre(5, 2, 8, 5, 5, 5));
}

TEST(Thin, PiecesOfPathWithinARowBecomeTheirMean)
{
  TestTrack track = Along({0, 1, 2, 3, 4, 5, 6, 7});
  for (std::size_t i = 0; i < track.Points.size(); ++i) {
    track.Points[i].Row = i < 5 ? 1 : 2;
  }
  EXPECT_EQ(CountThinned(track.Points, 3), 3);
  Track work = track.InWork();
  ThinPath(work, 3);
  EXPECT_EQ(track.FateLetters(), ".++.+.++");
  ASSERT_EQ(track.Points.size(), 3);
  EXPECT_DOUBLE_EQ(track.Points[0].X, 1);
  EXPECT_DOUBLE_EQ(track.Points[1].X, 3.5);
  EXPECT_DOUBLE_EQ(track.Points[2].Signals[0], 7);
}

}  // namespace
}  // namespace veln
