#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <vector>

namespace veln {

/// A place in the field, in the survey's coordinates.
struct FieldPosition {
  double X = 0;
  double Y = 0;
};

/// One candidate of each design point: its place in the point's list, from 0.
using CandidateChoice = std::vector<std::size_t>;

/// How many nodes of search trees may still be looked at. One limit is handed from proof to proof, so that a
/// pathological survey can't hold the program up.
struct SearchLimit {
  std::int64_t NodesLeft = 300'000;
};

/// The candidates of all design points with their distances to each other: which one of each is to be dug is
/// judged by the log separation that the exchange search raises, the mean natural logarithm of the distances
/// to the nearest neighbour, each with 0.000001 added.
class SpreadProblem {
 public:
  /// Two design points or more, each with a candidate or more.
  explicit SpreadProblem(const std::vector<std::vector<FieldPosition>>& candidates);

  [[nodiscard]] std::size_t PointCount() const { return first_.size() - 1; }
  [[nodiscard]] std::size_t CandidateCount() const { return first_.back(); }
  /// Candidates of one point.
  [[nodiscard]] std::size_t CandidatesOf(std::size_t point) const
  {
    return first_[point + 1] - first_[point];
  }
  /// How many different plans the candidates allow.
  [[nodiscard]] std::int64_t Combinations() const;
  /// Candidates are numbered through all points: the number of a point's first.
  [[nodiscard]] std::size_t First(std::size_t point) const { return first_[point]; }
  [[nodiscard]] double Distance(std::size_t a, std::size_t b) const
  {
    return distance_[a * CandidateCount() + b];
  }
  /// The logarithm of the distance of two candidates plus 0.000001.
  [[nodiscard]] double LogDistance(std::size_t a, std::size_t b) const
  {
    return log_[a * CandidateCount() + b];
  }

  /// The log separation of a plan, to the bit that of the exchange search.
  [[nodiscard]] double LogSeparation(const CandidateChoice& choice) const;
  /// The smallest distance between two sites of a plan.
  [[nodiscard]] double SmallestDistance(const CandidateChoice& choice) const;

 private:
  std::vector<std::size_t> first_;  ///< by point; one more at the end
  std::vector<double> distance_, log_;
};

/// The best spread of a problem, with what is known of it.
struct ExactSpread {
  CandidateChoice Best;
  double LogSeparation = 0;  ///< of `Best`
  double Bound = 0;          ///< no plan's log separation is greater; that of `Best` where it is proven
  bool Proven = false;
};

/// The plan of the greatest log separation among those whose sites all lie at least `leastDistance` apart, by
/// branch and bound (Land & Doig 1960, Econometrica 28:497-520). `start`, a plan that keeps that distance, is
/// the answer unless another one is better by more than 1E-12. Empty without such a plan; when the limit
/// ended the search before any was found, the answer is empty too and `limit` tells it.
std::optional<ExactSpread> FindBestSpread(const SpreadProblem& problem,
                                          const std::optional<CandidateChoice>& start, SearchLimit& limit,
                                          double leastDistance = 0);

/// The greatest possible smallest distance between two sites of a plan. Empty when the limit ended the
/// search.
std::optional<double> GreatestSmallestDistance(const SpreadProblem& problem, SearchLimit& limit);

}  // namespace veln
