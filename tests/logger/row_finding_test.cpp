#include "logger/row_finding.h"

#include "support/refusals.h"
#include "support/surveys.h"
#include "tracks.h"

#include <gtest/gtest.h>

namespace veln {
namespace {

/// The rows of sites, a row that goes on only once: "1 0 2 0 3".
std::string RowsText(const std::vector<TrackPoint>& points)
{
  std::string text;
  int last = -1;
  for (const TrackPoint& point : points) {
    if (point.Row != last) {
      last = point.Row;
      text += (text.empty() ? "" : " ") + std::to_string(last);
    }
  }
  return text;
}

TEST(Rows, ToAndFroWithTurnsBetween)
{
  TestTrack track = ToAndFro(4, 60, 6);
  const RowSummary summary = FindRows(track.Points, {});
  EXPECT_TRUE(summary.HasRows);
  EXPECT_EQ(summary.Rows, 4);
  EXPECT_EQ(RowsText(track.Points), "1 0 2 0 3 0 4");
  EXPECT_EQ(track.Points[30].Row, 1);
  EXPECT_EQ(track.Points[63].Row, 0);  // half way along the first headland
  EXPECT_NEAR(summary.TrackMetres, 258, 1E-9);
}

TEST(Rows, StraightSidesOfAnOvalAreRows)
{
  std::vector<PlanePoint> corners;
  for (int round = 0; round < 2; ++round) {
    for (const PlanePoint& corner : {PlanePoint{0, 0},
                                     {100, 0},
                                     {104, 2},
                                     {105, 6},
                                     {104, 10},
                                     {100, 12},
                                     {0, 12},
                                     {-4, 10},
                                     {-5, 6},
                                     {-4, 2}}) {
      corners.push_back(corner);
    }
  }
  TestTrack track = TrackThrough(corners);
  const RowSummary summary = FindRows(track.Points, {});
  EXPECT_TRUE(summary.HasRows);
  EXPECT_EQ(RowsText(track.Points), "1 0 2 0 3 0 4 0");
}

TEST(Rows, HeadingsComeFromFiveMetresNotFromRecordToRecord)
{
  // Half a metre of noise at every metre would turn the heading by 45 degrees from record to record.
  SteadyRandom random(3);
  TestTrack track = ToAndFro(3, 80, 12);
  for (TrackPoint& point : track.Points) {
    point.X += random.Next() * 0.5;
    point.Y += random.Next() * 0.5;
  }
  const RowSummary summary = FindRows(track.Points, {});
  EXPECT_EQ(summary.Rows, 3);
  EXPECT_GT(summary.SitesInRows, 210);
}

TEST(Rows, GapsAndNewFilesEndARow)
{
  const auto rows = [](auto change) {
    TestTrack track = TrackThrough({{0, 0}, {100, 0}});
    for (std::size_t i = 50; i < track.Points.size(); ++i) {
      change(track.Points[i]);
    }
    return FindRows(track.Points, {}).Rows;
  };
  EXPECT_EQ(rows([](TrackPoint&) {}), 1);
  EXPECT_EQ(rows([](TrackPoint& point) { point.Time += 9; }), 1);  // 10 s in all
  EXPECT_EQ(rows([](TrackPoint& point) { point.Time += 9.1; }), 2);
  EXPECT_EQ(rows([](TrackPoint& point) { point.X += 19; }), 1);
  EXPECT_EQ(rows([](TrackPoint& point) { point.X += 19.1; }), 2);
  EXPECT_EQ(rows([](TrackPoint& point) { point.File = 1; }), 2);
}

TEST(Rows, LongEnoughStraightEnoughAndEnough)
{
  const auto summary = [](double length, const RowChoices& choices) {
    TestTrack track = ToAndFro(3, length, 6);
    return FindRows(track.Points, choices);
  };
  EXPECT_TRUE(summary(40, {}).HasRows);
  EXPECT_EQ(summary(12, {}).Rows, 0);  // turns take some of each end
  RowChoices shorter;
  shorter.LeastMetres = 5;
  EXPECT_EQ(summary(14, shorter).Rows, 3);
  TestTrack two = ToAndFro(2, 100, 6);
  EXPECT_FALSE(FindRows(two.Points, {}).HasRows);
  EXPECT_EQ(RowsText(two.Points), "0");
  // A circle of 60 m turns by less than 30 degrees in 10 m, but it is not straight.
  TestTrack circle;
  for (int i = 0; i < 300; ++i) {
    circle.Add(60 * std::cos(i / 60.0), 60 * std::sin(i / 60.0));
  }
  EXPECT_EQ(FindRows(circle.Points, {}).Rows, 0);
}

TEST(Rows, MoreThanASurveyHoldsAreRefusedWithTheLengthThatFits)
{
  // 260 rows of 19 m and 20 of 29 m, each a file of its own.
  TestTrack track;
  for (int row = 0; row < 280; ++row) {
    for (int i = 0; i <= (row < 260 ? 19 : 29); ++i) {
      track.Add(i, row * 3.0);
      track.Points.back().File = static_cast<std::uint16_t>(row);
    }
  }
  EXPECT_EQ(RefusalOf([&] { FindRows(track.Points, {}); }),
            "The track has 280 rows; a survey has at most 250. --row-min 20 takes the longest of them, "
            "--rows none makes "
            "a grid of the sites.");
  RowChoices longer;
  longer.LeastMetres = 20;
  EXPECT_EQ(FindRows(track.Points, longer).Rows, 20);
}

TEST(Rows, AColumnNumbersItsRuns)
{
  TestTrack track = TrackThrough({{0, 0}, {9, 0}});
  const std::vector<std::uint16_t> runs = {4, 4, 4, 0, 0, 7, 7, 9, 9, 9};
  for (std::size_t i = 0; i < runs.size(); ++i) {
    track.Points[i].Row = runs[i];
  }
  RowChoices column;
  column.From = RowsFrom::Column;
  const RowSummary summary = FindRows(track.Points, column);
  EXPECT_TRUE(summary.HasRows);
  EXPECT_EQ(RowsText(track.Points), "1 0 2 3");
  EXPECT_EQ(summary.SitesInRows, 8);
  KeepTurns(track.Points);
  EXPECT_EQ(RowsText(track.Points), "1 2 3");
  track.Points[0].Row = 0;
  KeepTurns(track.Points);
  EXPECT_EQ(track.Points[0].Row, 1);
}

}  // namespace
}  // namespace veln
