#include "logger/cleaning.h"

#include <algorithm>

namespace veln {

namespace {

double MedianOf(std::vector<double>& values)
{
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return values.size() % 2 == 1 ? *middle : (*middle + *std::max_element(values.begin(), middle)) / 2;
}

/// One signal of the sites [begin, end), which are one piece of path.
void SmoothPiece(std::vector<TrackPoint>& points, std::size_t begin, std::size_t end, std::size_t signal,
                 std::size_t half)
{
  std::vector<double> smooth;
  std::vector<double> window;
  smooth.reserve(end - begin);
  for (std::size_t i = begin; i < end; ++i) {
    const std::size_t first = i - std::min(half, i - begin);
    const std::size_t last = std::min(i + half, end - 1);
    window.clear();
    for (std::size_t k = first; k <= last; ++k) {
      window.push_back(points[k].Signals.at(signal));
    }
    smooth.push_back(MedianOf(window));
  }
  for (std::size_t i = begin; i < end; ++i) {
    points[i].Signals.at(signal) = smooth[i - begin];
  }
}

}  // namespace

void SmoothByMedian(std::vector<TrackPoint>& points, int signals, int sites)
{
  if (sites < 3) {
    return;
  }
  for (std::size_t begin = 0; begin < points.size();) {
    std::size_t end = begin + 1;
    while (end < points.size() && !BeginsPiece(points[end - 1], points[end])) {
      ++end;
    }
    for (std::size_t signal = 0; signal < static_cast<std::size_t>(signals); ++signal) {
      SmoothPiece(points, begin, end, signal, static_cast<std::size_t>(sites) / 2);
    }
    begin = end;
  }
}

}  // namespace veln
