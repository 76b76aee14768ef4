#pragma once

#include "logger/cleaning.h"

#include <cmath>
#include <string>
#include <vector>

namespace veln {

/// A track of readings with the account of their fates.
struct TestTrack {
  std::vector<TrackPoint> Points;
  std::vector<Fate> Fates;

  /// A reading one second behind the one before; the first signal counts the readings from 1.
  void Add(double x, double y)
  {
    TrackPoint point;
    point.X = x;
    point.Y = y;
    point.First = static_cast<std::uint32_t>(Points.size());
    point.Last = point.First;
    point.Time = static_cast<double>(Points.size());
    point.Signals[0] = static_cast<double>(Points.size() + 1);
    Points.push_back(point);
    Fates.push_back(Fate::Site);
  }
  Track InWork() { return {Points, Fates}; }

  /// A letter for each reading: "." site, "+" joined, "J" jump, "T" turn, "O" outside, "X" excluded, "0" zero
  /// or less,
  /// "?" other.
  [[nodiscard]] std::string FateLetters() const
  {
    constexpr std::string_view Letters = ".++???J?OX0T";
    std::string text;
    for (const Fate fate : Fates) {
      text += Letters[static_cast<std::size_t>(fate)];
    }
    return text;
  }
};

/// Readings every metre along lines from corner to corner.
inline TestTrack TrackThrough(const std::vector<PlanePoint>& corners)
{
  TestTrack track;
  track.Add(corners.front().X, corners.front().Y);
  for (std::size_t i = 1; i < corners.size(); ++i) {
    const double dx = corners[i].X - corners[i - 1].X;
    const double dy = corners[i].Y - corners[i - 1].Y;
    const int steps = static_cast<int>(std::lround(std::sqrt(dx * dx + dy * dy)));
    for (int k = 1; k <= steps; ++k) {
      track.Add(corners[i - 1].X + dx * k / steps, corners[i - 1].Y + dy * k / steps);
    }
  }
  return track;
}

/// Rows of `length` metres to and fro, `apart` metres from each other.
inline TestTrack ToAndFro(int rows, double length, double apart)
{
  std::vector<PlanePoint> corners;
  for (int row = 0; row < rows; ++row) {
    const double from = row % 2 == 0 ? 0 : length;
    corners.push_back({from, row * apart});
    corners.push_back({length - from, row * apart});
  }
  return TrackThrough(corners);
}

}  // namespace veln
