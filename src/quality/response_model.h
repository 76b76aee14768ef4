#pragma once

#include "quality/plan.h"

#include <array>
#include <optional>
#include <span>

namespace veln {

/// A response surface in the decorrelated signals, the model that a plan's samples are to estimate: its terms
/// are 1, z1, z2, z1 z1, z2 z2, z1 z2 (one signal: 1, z1, z1 z1), or without the squares and the product the
/// linear ones.
class ResponseModel {
 public:
  static constexpr std::size_t MostTerms = 6;
  using Terms = std::array<double, MostTerms>;
  /// A symmetric matrix, row by row; only the part of `TermCount` rows and columns counts.
  using Matrix = std::array<Terms, MostTerms>;

  /// The quadratic model for plans of 10 sites and more, the linear one for fewer.
  ResponseModel(const SurveyFacts& survey, std::size_t planSites);

  [[nodiscard]] std::size_t TermCount() const { return count_; }
  /// The terms at a site (f).
  [[nodiscard]] Terms At(std::size_t site) const;
  /// The sum of f f' over sites: the information matrix X'X of a plan.
  [[nodiscard]] Matrix Information(std::span<const std::size_t> sites) const;

 private:
  const SurveyFacts& survey_;
  bool quadratic_;
  std::size_t count_;
};

/// The Cholesky factor L of an information matrix, L L' = X'X (Golub & Van Loan 2013, Matrix
/// Computations, 4.2). Empty for a singular matrix: a pivot below 1E-12 of its diagonal element.
std::optional<ResponseModel::Matrix> Factor(const ResponseModel::Matrix& information, std::size_t terms);

/// D-efficiency det(X'X)^(1/p) / n of a plan of `sites` sites, by its factor (Wald 1943, Ann. Math. Stat.
/// 14:134-140; Kiefer & Wolfowitz 1960, Canad. J. Math. 12:363-366).
double DEfficiency(const ResponseModel::Matrix& factor, std::size_t terms, std::size_t sites);

/// The prediction variance f' (X'X)^-1 f in units of the residual variance (Atkinson, Donev & Tobias 2007,
/// Optimum Experimental Designs, Oxford).
double PredictionVariance(const ResponseModel::Matrix& factor, std::size_t terms,
                          const ResponseModel::Terms& f);

/// The mean of the prediction variance over sites whose f f' sum up to `information`, over `sites` sites.
double MeanPredictionVariance(const ResponseModel::Matrix& factor, std::size_t terms,
                              const ResponseModel::Matrix& information, std::size_t sites);

}  // namespace veln
