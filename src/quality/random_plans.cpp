#include "quality/random_plans.h"

#include "quality/field_spread.h"

#include <algorithm>
#include <limits>

namespace veln {

namespace {

constexpr std::size_t MostSitesTried = 200;

/// The numbers of sites that are tried, in rising order.
std::vector<std::size_t> SiteNumbers(std::size_t planSites, std::size_t available)
{
  constexpr std::size_t MostEven = 40;
  constexpr std::size_t Step = 5;
  const std::size_t most = std::min(MostSitesTried, available);
  std::vector<std::size_t> numbers = {planSites};
  for (std::size_t m = planSites + 2 - planSites % 2; m <= std::min(MostEven, most); m += 2) {
    numbers.push_back(m);
  }
  for (std::size_t m = std::max(MostEven, planSites) / Step * Step + Step; m <= most; m += Step) {
    numbers.push_back(m);
  }
  return numbers;
}

/// The mean of the two middle values of an even number of them.
double Median(std::vector<double>& values)
{
  const auto upper = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, upper);
  return (*std::max_element(values.begin(), upper) + *upper) / 2;
}

}  // namespace

std::span<const std::size_t> RandomPlans::Draw(std::size_t count)
{
  constexpr unsigned HalfWord = 32;
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t left = sites_.size() - i;
    const auto pick = static_cast<std::size_t>((random_() >> HalfWord) * left >> HalfWord);
    std::swap(sites_[i], sites_[i + pick]);
  }
  return std::span(sites_).first(count);
}

std::vector<RandomPlanFigures> DrawRandomPlans(const SurveyFacts& survey, const ResponseModel& model,
                                               std::size_t count, int plans)
{
  RandomPlans random(survey.Available);
  std::vector<RandomPlanFigures> figures;
  for (int i = 0; i < plans; ++i) {
    const auto sites = random.Draw(count);
    RandomPlanFigures drawn{std::nullopt, SmallestDistance(survey, sites)};
    if (const auto factor = Factor(model.Information(sites), model.TermCount())) {
      drawn.DEfficiency = DEfficiency(*factor, model.TermCount(), count);
    }
    figures.push_back(drawn);
  }
  return figures;
}

EquivalentSites FindEquivalentSites(const SurveyFacts& survey, const ResponseModel& model,
                                    std::size_t planSites, double planMeanVariance)
{
  constexpr int PlansTried = 200;
  const std::size_t terms = model.TermCount();
  const ResponseModel::Matrix all = model.Information(survey.Available);
  RandomPlans random(survey.Available);
  EquivalentSites result;
  for (const std::size_t m : SiteNumbers(planSites, survey.Available.size())) {
    std::vector<double> variances;
    for (int i = 0; i < PlansTried; ++i) {
      const auto factor = Factor(model.Information(random.Draw(m)), terms);
      variances.push_back(factor ? MeanPredictionVariance(*factor, terms, all, survey.Available.size())
                                 : std::numeric_limits<double>::infinity());
    }
    result.Most = m;
    if (Median(variances) <= planMeanVariance) {
      result.Sites = m;
      return result;
    }
  }
  return result;
}

}  // namespace veln
