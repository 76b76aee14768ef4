#include "quality/response_model.h"

#include <cmath>

namespace veln {

namespace {

constexpr std::size_t FewestForSquares = 10;

std::size_t CountTerms(bool twoSignals, bool quadratic)
{
  if (twoSignals) {
    return quadratic ? 6 : 3;
  }
  return quadratic ? 3 : 2;
}

/// Solves L y = f.
ResponseModel::Terms ForwardSolve(const ResponseModel::Matrix& factor, std::size_t terms,
                                  const ResponseModel::Terms& f)
{
  ResponseModel::Terms y{};
  for (std::size_t i = 0; i < terms; ++i) {
    double rest = f[i];
    for (std::size_t k = 0; k < i; ++k) {
      rest -= factor[i][k] * y[k];
    }
    y[i] = rest / factor[i][i];
  }
  return y;
}

}  // namespace

ResponseModel::ResponseModel(const SurveyFacts& survey, std::size_t planSites)
    : survey_(survey),
      quadratic_(planSites >= FewestForSquares),
      count_(CountTerms(survey.TwoSignals(), quadratic_))
{
}

ResponseModel::Terms ResponseModel::At(std::size_t site) const
{
  const double z1 = survey_.Z1[site];
  if (!survey_.TwoSignals()) {
    return {1, z1, z1 * z1};
  }
  const double z2 = survey_.Z2[site];
  return {1, z1, z2, z1 * z1, z2 * z2, z1 * z2};
}

ResponseModel::Matrix ResponseModel::Information(std::span<const std::size_t> sites) const
{
  Matrix sum{};
  for (const std::size_t site : sites) {
    const Terms f = At(site);
    for (std::size_t i = 0; i < count_; ++i) {
      for (std::size_t j = 0; j <= i; ++j) {
        sum[i][j] += f[i] * f[j];
      }
    }
  }
  return sum;
}

std::optional<ResponseModel::Matrix> Factor(const ResponseModel::Matrix& information, std::size_t terms)
{
  constexpr double Singular = 1E-12;
  ResponseModel::Matrix factor{};
  for (std::size_t i = 0; i < terms; ++i) {
    for (std::size_t j = 0; j <= i; ++j) {
      double rest = information[i][j];
      for (std::size_t k = 0; k < j; ++k) {
        rest -= factor[i][k] * factor[j][k];
      }
      if (i != j) {
        factor[i][j] = rest / factor[j][j];
      } else if (rest > Singular * information[i][i]) {
        factor[i][i] = std::sqrt(rest);
      } else {
        return std::nullopt;
      }
    }
  }
  return factor;
}

double DEfficiency(const ResponseModel::Matrix& factor, std::size_t terms, std::size_t sites)
{
  double logDeterminant = 0;
  for (std::size_t i = 0; i < terms; ++i) {
    logDeterminant += 2 * std::log(factor[i][i]);
  }
  return std::exp(logDeterminant / static_cast<double>(terms)) / static_cast<double>(sites);
}

double PredictionVariance(const ResponseModel::Matrix& factor, std::size_t terms,
                          const ResponseModel::Terms& f)
{
  const ResponseModel::Terms y = ForwardSolve(factor, terms, f);
  double sum = 0;
  for (std::size_t i = 0; i < terms; ++i) {
    sum += y[i] * y[i];
  }
  return sum;
}

double MeanPredictionVariance(const ResponseModel::Matrix& factor, std::size_t terms,
                              const ResponseModel::Matrix& information, std::size_t sites)
{
  // The sum of f' (X'X)^-1 f over sites is the trace of L^-1 M L'^-1 with M the sum of their f f': column by
  // column, with the columns c of L'^-1, the sum of c' M c.
  double sum = 0;
  for (std::size_t column = 0; column < terms; ++column) {
    ResponseModel::Terms c{};
    for (std::size_t i = column + 1; i-- > 0;) {  // L' c = e, from below
      double rest = i == column ? 1 : 0;
      for (std::size_t k = i + 1; k <= column; ++k) {
        rest -= factor[k][i] * c[k];
      }
      c[i] = rest / factor[i][i];
    }
    for (std::size_t i = 0; i <= column; ++i) {
      sum += information[i][i] * c[i] * c[i];
      for (std::size_t j = 0; j < i; ++j) {
        sum += 2 * information[i][j] * c[i] * c[j];
      }
    }
  }
  return sum / static_cast<double>(sites);
}

}  // namespace veln
