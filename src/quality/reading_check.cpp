#include "quality/reading_check.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr std::size_t Reach = 6;
constexpr std::size_t FewestNeighbours = 4;

/// The sites near a site in its row, itself left out. A row is a run of sites with one row number.
std::vector<std::size_t> Neighbours(const SurveyFacts& survey, std::size_t site)
{
  std::vector<std::size_t> neighbours;
  const auto inRow = [&](std::size_t i) { return survey.Row[i] == survey.Row[site]; };
  for (std::size_t step = 1; step <= Reach && step <= site && inRow(site - step); ++step) {
    neighbours.push_back(site - step);
  }
  for (std::size_t step = 1; step <= Reach && site + step < survey.Row.size() && inRow(site + step); ++step) {
    neighbours.push_back(site + step);
  }
  return neighbours;
}

double Median(std::vector<double> values)
{
  std::ranges::sort(values);
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

double Difference(std::span<const double> signal, const std::vector<std::size_t>& neighbours,
                  std::size_t site, double deviation)
{
  std::vector<double> values;
  values.reserve(neighbours.size());
  for (const std::size_t i : neighbours) {
    values.push_back(signal[i]);
  }
  return std::abs(signal[site] - Median(std::move(values))) / deviation;
}

}  // namespace

std::optional<double> ReadingDifference(const SurveyFacts& survey, std::size_t site)
{
  if (survey.Row.empty()) {
    return std::nullopt;
  }
  const std::vector<std::size_t> neighbours = Neighbours(survey, site);
  if (neighbours.size() < FewestNeighbours) {
    return std::nullopt;
  }
  double difference = Difference(survey.S1, neighbours, site, survey.SignalStd[0]);
  if (survey.TwoSignals()) {
    difference = std::max(difference, Difference(survey.S2, neighbours, site, survey.SignalStd[1]));
  }
  return difference;
}

}  // namespace veln
