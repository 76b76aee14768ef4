#include "design/exact_search.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>

namespace veln {

namespace {

constexpr double Impossible = -std::numeric_limits<double>::infinity();
constexpr double Equal = 1E-12;  // plans this near to each other count as equally good

/// A random number below `count` (at most 2^32), the same on every platform.
std::size_t Below(std::mt19937_64& random, std::size_t count)
{
  constexpr unsigned HalfWord = 32;
  return static_cast<std::size_t>((random() >> HalfWord) * count >> HalfWord);
}

/// Raises a plan by single exchanges, the best one first, until none helps.
void Exchange(const SpreadProblem& problem, CandidateChoice& choice)
{
  double best = problem.LogSeparation(choice);
  for (bool improved = true; improved;) {
    improved = false;
    CandidateChoice found = choice;
    for (std::size_t point = 0; point < choice.size(); ++point) {
      CandidateChoice trial = choice;
      for (trial[point] = 0; trial[point] < problem.CandidatesOf(point); ++trial[point]) {
        const double separation = problem.LogSeparation(trial);
        if (separation > best) {
          best = separation;
          found = trial;
          improved = true;
        }
      }
    }
    choice = found;
  }
}

/// The search tree of the best spread. A node has the sites of some points fixed. `cap` bounds for every
/// candidate the log of the distance to its nearest neighbour in any plan below the node: over the other
/// points, the least of the greatest distances to a candidate of theirs, or to their site once it is fixed.
/// The sum of the caps of the fixed sites and of each open point's greatest cap bounds the plan.
class SpreadTree {
 public:
  SpreadTree(const SpreadProblem& problem, SearchLimit& limit, double leastDistance)
      : problem_(problem), limit_(limit), least_(leastDistance), fixed_(problem.PointCount(), Open)
  {
  }

  /// A plan that may be the answer.
  void Offer(const CandidateChoice& choice)
  {
    if (problem_.SmallestDistance(choice) < least_) {
      return;
    }
    const double separation = problem_.LogSeparation(choice);
    if (separation > best_ + Equal) {
      best_ = separation;
      bestChoice_ = choice;
    }
  }

  std::optional<ExactSpread> Search()
  {
    const double open = Visit(RootCaps());
    if (bestChoice_.empty()) {
      return std::nullopt;
    }
    const bool proven = open == Impossible;
    return ExactSpread{bestChoice_, best_, proven ? best_ : std::max(open, best_), proven};
  }

 private:
  static constexpr std::size_t Open = std::numeric_limits<std::size_t>::max();

  using Caps = std::vector<double>;

  struct Trial {
    std::size_t Candidate = 0;
    double Bound = 0;
  };

  /// Sites nearer to each other than allowed stand in no plan together.
  [[nodiscard]] double Reach(std::size_t a, std::size_t b) const
  {
    return problem_.Distance(a, b) < least_ ? Impossible : problem_.LogDistance(a, b);
  }

  [[nodiscard]] Caps RootCaps() const
  {
    Caps caps(problem_.CandidateCount(), std::numeric_limits<double>::infinity());
    for (std::size_t p = 0; p < problem_.PointCount(); ++p) {
      for (std::size_t q = 0; q < problem_.PointCount(); ++q) {
        for (std::size_t a = problem_.First(p); p != q && a < problem_.First(p + 1); ++a) {
          double farthest = Impossible;
          for (std::size_t b = problem_.First(q); b < problem_.First(q + 1); ++b) {
            farthest = std::max(farthest, Reach(a, b));
          }
          caps[a] = std::min(caps[a], farthest);
        }
      }
    }
    return caps;
  }

  /// The bound of the plans below this node that have candidate `a` at point `p`.
  [[nodiscard]] double BoundWith(const Caps& caps, std::size_t p, std::size_t a) const
  {
    double sum = caps[a];
    for (std::size_t q = 0; q < problem_.PointCount(); ++q) {
      if (q == p) {
        continue;
      }
      if (fixed_[q] != Open) {
        sum += std::min(caps[fixed_[q]], Reach(a, fixed_[q]));
        continue;
      }
      double greatest = Impossible;
      for (std::size_t b = problem_.First(q); b < problem_.First(q + 1); ++b) {
        greatest = std::max(greatest, std::min(caps[b], Reach(a, b)));
      }
      sum += greatest;
    }
    return sum / static_cast<double>(problem_.PointCount());
  }

  /// Of the open points the one with the fewest candidates that may still lead to a better plan, those with
  /// the greatest bound first. None are left when a point has no such candidate.
  [[nodiscard]] std::vector<Trial> Branches(const Caps& caps, std::size_t& point) const
  {
    std::vector<Trial> fewest;
    point = Open;
    for (std::size_t p = 0; p < problem_.PointCount(); ++p) {
      if (fixed_[p] != Open) {
        continue;
      }
      std::vector<Trial> live;
      for (std::size_t a = problem_.First(p); a < problem_.First(p + 1); ++a) {
        const double bound = BoundWith(caps, p, a);
        if (bound > best_ + Equal) {
          live.push_back({a, bound});
        }
      }
      if (point == Open || live.size() < fewest.size()) {
        point = p;
        fewest = std::move(live);
      }
      if (fewest.empty()) {
        break;
      }
    }
    std::ranges::stable_sort(fewest, std::ranges::greater(), &Trial::Bound);
    return fewest;
  }

  /// Searches below a node. Gives the greatest bound of what the limit left unseen; -infinity when all was
  /// seen.
  // NOLINTNEXTLINE(misc-no-recursion): as deep as there are points
  double Visit(const Caps& caps)
  {
    if (std::ranges::find(fixed_, Open) == fixed_.end()) {
      OfferFixed();
      return Impossible;
    }
    std::size_t point = Open;
    const std::vector<Trial> trials = Branches(caps, point);
    double open = Impossible;
    for (const Trial& trial : trials) {
      if (trial.Bound <= best_ + Equal) {
        continue;
      }
      if (limit_.NodesLeft <= 0) {
        open = std::max(open, trial.Bound);
        continue;
      }
      --limit_.NodesLeft;
      fixed_[point] = trial.Candidate;
      Caps below = caps;
      for (std::size_t b = 0; b < below.size(); ++b) {
        if (b < problem_.First(point) || b >= problem_.First(point + 1)) {
          below[b] = std::min(below[b], Reach(trial.Candidate, b));
        }
      }
      open = std::max(open, Visit(below));
      fixed_[point] = Open;
    }
    return open;
  }

  void OfferFixed()
  {
    CandidateChoice choice;
    for (std::size_t p = 0; p < fixed_.size(); ++p) {
      choice.push_back(fixed_[p] - problem_.First(p));
    }
    Offer(choice);
  }

  const SpreadProblem& problem_;
  SearchLimit& limit_;
  double least_;
  std::vector<std::size_t> fixed_;  ///< by point: the candidate's number, or `Open`
  double best_ = Impossible;
  CandidateChoice bestChoice_;
};

/// Whether a plan exists whose sites all lie at least a distance apart: point by point, each fixed site
/// taking away the candidates of the open points that lie too near.
class DistanceTree {
 public:
  DistanceTree(const SpreadProblem& problem, SearchLimit& limit, double distance)
      : problem_(problem), limit_(limit), distance_(distance)
  {
  }

  /// Empty when the limit ended the search.
  std::optional<bool> Feasible()
  {
    const bool found = Visit(std::vector<bool>(problem_.CandidateCount(), true), 0);
    return found || limit_.NodesLeft > 0 ? std::optional(found) : std::nullopt;
  }

 private:
  /// The open point with the fewest candidates left.
  [[nodiscard]] std::size_t NextPoint(const std::vector<bool>& left) const
  {
    std::size_t next = 0;
    std::size_t fewest = std::numeric_limits<std::size_t>::max();
    for (std::size_t p = 0; p < problem_.PointCount(); ++p) {
      if (std::ranges::find(done_, p) != done_.end()) {
        continue;
      }
      std::size_t count = 0;
      for (std::size_t a = problem_.First(p); a < problem_.First(p + 1); ++a) {
        count += left[a] ? 1U : 0U;
      }
      if (count < fewest) {
        fewest = count;
        next = p;
      }
    }
    return next;
  }

  // NOLINTNEXTLINE(misc-no-recursion): as deep as there are points
  bool Visit(const std::vector<bool>& left, std::size_t fixedPoints)
  {
    if (fixedPoints == problem_.PointCount()) {
      return true;
    }
    const std::size_t point = NextPoint(left);
    done_.push_back(point);
    for (std::size_t a = problem_.First(point); a < problem_.First(point + 1); ++a) {
      if (!left[a] || limit_.NodesLeft-- <= 0) {
        continue;
      }
      std::vector<bool> below = left;
      for (std::size_t b = 0; b < below.size(); ++b) {
        below[b] = below[b] && problem_.Distance(a, b) >= distance_;
      }
      if (Visit(below, fixedPoints + 1)) {
        return true;
      }
    }
    done_.pop_back();
    return false;
  }

  const SpreadProblem& problem_;
  SearchLimit& limit_;
  double distance_;
  std::vector<std::size_t> done_;
};

}  // namespace

SpreadProblem::SpreadProblem(const std::vector<std::vector<FieldPosition>>& candidates)
{
  constexpr double Shared = 0.000001;  // keeps the logarithm defined when two sites share a position
  std::vector<FieldPosition> all;
  for (const auto& ofPoint : candidates) {
    first_.push_back(all.size());
    all.insert(all.end(), ofPoint.begin(), ofPoint.end());
  }
  first_.push_back(all.size());
  for (const FieldPosition& a : all) {
    for (const FieldPosition& b : all) {
      const double dx = a.X - b.X;
      const double dy = a.Y - b.Y;
      distance_.push_back(std::sqrt(dx * dx + dy * dy));
      log_.push_back(std::log(distance_.back() + Shared));
    }
  }
}

std::int64_t SpreadProblem::Combinations() const
{
  std::int64_t product = 1;
  for (std::size_t point = 0; point < PointCount(); ++point) {
    product *= static_cast<std::int64_t>(CandidatesOf(point));
  }
  return product;
}

double SpreadProblem::LogSeparation(const CandidateChoice& choice) const
{
  double sum = 0;
  for (std::size_t p = 0; p < choice.size(); ++p) {
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t q = 0; q < choice.size(); ++q) {
      if (q != p) {
        nearest = std::min(nearest, LogDistance(First(p) + choice[p], First(q) + choice[q]));
      }
    }
    sum = sum + nearest;
  }
  return sum / static_cast<double>(choice.size());
}

double SpreadProblem::SmallestDistance(const CandidateChoice& choice) const
{
  double smallest = std::numeric_limits<double>::infinity();
  for (std::size_t p = 0; p < choice.size(); ++p) {
    for (std::size_t q = 0; q < p; ++q) {
      smallest = std::min(smallest, Distance(First(p) + choice[p], First(q) + choice[q]));
    }
  }
  return smallest;
}

std::optional<ExactSpread> FindBestSpread(const SpreadProblem& problem,
                                          const std::optional<CandidateChoice>& start, SearchLimit& limit,
                                          double leastDistance)
{
  constexpr std::uint64_t Seed = 20;
  constexpr int RandomStarts = 20;
  SpreadTree tree(problem, limit, leastDistance);
  if (start) {
    tree.Offer(*start);
  }
  std::mt19937_64 random(Seed);
  for (int i = 0; i < RandomStarts; ++i) {
    CandidateChoice choice;
    for (std::size_t point = 0; point < problem.PointCount(); ++point) {
      choice.push_back(Below(random, problem.CandidatesOf(point)));
    }
    Exchange(problem, choice);
    tree.Offer(choice);
  }
  return tree.Search();
}

std::optional<double> GreatestSmallestDistance(const SpreadProblem& problem, SearchLimit& limit)
{
  std::vector<double> distances;
  for (std::size_t p = 0; p < problem.PointCount(); ++p) {
    for (std::size_t a = problem.First(p); a < problem.First(p + 1); ++a) {
      for (std::size_t b = problem.First(p + 1); b < problem.CandidateCount(); ++b) {
        distances.push_back(problem.Distance(a, b));
      }
    }
  }
  std::ranges::sort(distances);
  // The least distance of all is always kept; the answer is the last that can be.
  std::size_t kept = 0;
  std::size_t failed = distances.size();
  while (failed - kept > 1) {
    const std::size_t middle = (kept + failed) / 2;
    const std::optional<bool> feasible = DistanceTree(problem, limit, distances[middle]).Feasible();
    if (!feasible) {
      return std::nullopt;
    }
    (*feasible ? kept : failed) = middle;
  }
  return distances[kept];
}

}  // namespace veln
