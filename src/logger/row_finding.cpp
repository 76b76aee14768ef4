#include "logger/row_finding.h"

#include "logger/cleaning.h"
#include "logger/grouped_number.h"
#include "logger/path_chords.h"
#include "toolkit/refusal.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace veln {

namespace {

constexpr std::size_t FewestSitesInRow = 5;
constexpr double LeastStraightness = 0.9;

/// Consecutive sites between turns.
struct Run {
  std::size_t Begin = 0, End = 0;
  double Metres = 0;
};

/// Tells the sites of turns along a path, one after the other.
class TurnTeller {
 public:
  TurnTeller(const std::vector<TrackPoint>& points, const Path& path, const RowChoices& choices)
      : points_(points),
        path_(path),
        chord_(choices.ChordMetres),
        leastCosine_(std::cos(choices.TurnDegrees * std::numbers::pi / HalfCircle)),
        behind_(path),
        ahead_(path)
  {
  }

  /// Whether the headings behind and ahead of a site differ by more than the turn's angle. Within half a
  /// chord of the ends of the path there is no heading to compare.
  bool IsTurn(std::size_t site)
  {
    const double along = path_.Along(site);
    if (along < chord_ / 2 || path_.Length() - along < chord_ / 2) {
      return false;
    }
    const PathVector here{points_[site].X, points_[site].Y};
    const PathVector behind = Chord(behind_.At(along - chord_), here);
    const PathVector ahead = Chord(here, ahead_.At(along + chord_));
    return behind.X * ahead.X + behind.Y * ahead.Y < leastCosine_ * behind.Length() * ahead.Length();
  }

 private:
  static constexpr double HalfCircle = 180;

  const std::vector<TrackPoint>& points_;
  const Path& path_;
  double chord_, leastCosine_;
  PathCursor behind_, ahead_;
};

bool IsStraight(const std::vector<TrackPoint>& points, const Run& run)
{
  return Distance(points[run.Begin], points[run.End - 1]) >= LeastStraightness * run.Metres;
}

/// The rows of one unbroken path.
void AddRuns(const std::vector<TrackPoint>& points, const Path& path, const Run& stretch,
             const RowChoices& choices, std::vector<Run>& runs)
{
  Run run{stretch.Begin, stretch.Begin, 0};
  const auto finish = [&] {
    if (run.End - run.Begin >= FewestSitesInRow) {
      run.Metres = path.Along(run.End - 1) - path.Along(run.Begin);
      if (run.Metres >= choices.LeastMetres && IsStraight(points, run)) {
        runs.push_back(run);
      }
    }
  };
  TurnTeller turns(points, path, choices);
  for (std::size_t i = stretch.Begin; i < stretch.End; ++i) {
    if (turns.IsTurn(i)) {
      finish();
      run.Begin = i + 1;
    }
    run.End = i + 1;
  }
  finish();
}

/// Rows as the track goes.
std::vector<Run> RunsOf(const std::vector<TrackPoint>& points, const RowChoices& choices, RowSummary& summary)
{
  std::vector<Run> runs;
  for (std::size_t begin = 0; begin < points.size();) {
    std::size_t end = begin + 1;
    while (end < points.size() && !IsGap(points[end - 1], points[end])) {
      ++end;
    }
    const Path path(points, begin, end);
    summary.TrackMetres += path.Length();
    AddRuns(points, path, {begin, end, path.Length()}, choices, runs);
    begin = end;
  }
  for (const Run& run : runs) {
    summary.RowMetres += run.Metres;
  }
  return runs;
}

/// Too many rows: the least length of a row, in whole metres, that leaves no more than there may be.
void RefuseTooManyRows(std::vector<Run> runs)
{
  if (runs.size() <= MostTrackRows) {
    return;
  }
  std::ranges::sort(runs, std::greater<>(), &Run::Metres);
  const auto metres = static_cast<std::size_t>(std::floor(runs[MostTrackRows].Metres)) + 1;
  throw Refusal("The track has " + GroupedNumber(runs.size()) +
                " rows; a survey has at most 250. --row-min " + GroupedNumber(metres) +
                " takes the longest of them, --rows none makes a grid of the sites.");
}

/// Rows that a column tells: they are numbered already.
RowSummary CountColumnRows(std::vector<TrackPoint>& points)
{
  RowSummary summary;
  std::uint16_t last = 0;
  std::uint16_t rows = 0;
  for (TrackPoint& point : points) {
    if (point.Row != 0) {
      rows = static_cast<std::uint16_t>(rows + (point.Row != last ? 1 : 0));
      last = point.Row;
      point.Row = rows;
      ++summary.SitesInRows;
    }
  }
  summary.Rows = rows;
  if (summary.Rows > MostTrackRows) {
    throw Refusal("The column of rows tells " + GroupedNumber(summary.Rows) +
                  " rows; a survey has at most 250. --rows none makes a grid of the sites.");
  }
  summary.HasRows = rows > 0;
  return summary;
}

double LengthInRows(const std::vector<TrackPoint>& points, double& all)
{
  double inRows = 0;
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (!IsGap(points[i - 1], points[i])) {
      const double step = Distance(points[i - 1], points[i]);
      all += step;
      inRows += points[i].Row != 0 && points[i].Row == points[i - 1].Row ? step : 0;
    }
  }
  return inRows;
}

}  // namespace

RowSummary FindRows(std::vector<TrackPoint>& points, const RowChoices& choices)
{
  constexpr std::size_t FewestRows = 3;
  RowSummary summary;
  if (choices.From == RowsFrom::Column) {
    summary = CountColumnRows(points);
    summary.RowMetres = LengthInRows(points, summary.TrackMetres);
    summary.Sites = points.size();
    return summary;
  }
  const std::vector<Run> runs = RunsOf(points, choices, summary);
  summary.Sites = points.size();
  for (TrackPoint& point : points) {
    point.Row = 0;
  }
  if (choices.From == RowsFrom::None) {
    return summary;
  }
  summary.Rows = runs.size();
  summary.HasRows = runs.size() >= FewestRows && 2 * summary.RowMetres >= summary.TrackMetres;
  for (const Run& run : runs) {
    summary.SitesInRows += run.End - run.Begin;
  }
  if (!summary.HasRows) {
    return summary;
  }
  RefuseTooManyRows(runs);
  std::uint16_t row = 0;
  for (const Run& run : runs) {
    ++row;
    for (std::size_t i = run.Begin; i < run.End; ++i) {
      points[i].Row = row;
    }
  }
  return summary;
}

void KeepTurns(std::vector<TrackPoint>& points)
{
  std::uint16_t row = 1;
  for (TrackPoint& point : points) {
    row = point.Row == 0 ? row : point.Row;
    point.Row = row;
  }
}

}  // namespace veln
