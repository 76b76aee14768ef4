#include "quality/plan_quality.h"

#include "quality/reading_check.h"
#include "quality/response_model.h"

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr std::size_t MostSitesForRandomPlans = 200;

std::optional<ModelFigures> MeasureModel(const SurveyFacts& survey, const ResponseModel& model,
                                         std::span<const std::size_t> sites)
{
  const std::size_t terms = model.TermCount();
  const auto factor = sites.size() < terms ? std::nullopt : Factor(model.Information(sites), terms);
  if (!factor) {
    return std::nullopt;
  }
  ModelFigures figures;
  figures.DEfficiency = DEfficiency(*factor, terms, sites.size());
  figures.MeanVariance =
      MeanPredictionVariance(*factor, terms, model.Information(survey.Available), survey.Available.size());
  for (const std::size_t site : survey.Available) {
    const double variance = PredictionVariance(*factor, terms, model.At(site));
    if (variance > figures.LargestVariance) {
      figures.LargestVariance = variance;
      figures.LargestAt = site;
    }
  }
  return figures;
}

void MeasureTargets(const SurveyFacts& survey, const Plan& plan, PlanFigures& figures)
{
  TargetFigures targets;
  for (const PlanSite& site : plan.Sites) {
    figures.Misses.emplace_back();
    if (!site.Target) {
      continue;
    }
    const double miss = TargetMiss(survey, site.Site, *site.Target);
    figures.Misses.back() = miss;
    ++targets.Targets;
    targets.Missed += miss > CountedMiss ? 1 : 0;
    if (targets.Targets == 1 || miss > targets.WorstMiss) {
      targets.WorstMiss = miss;
      targets.WorstPoint = site.Point;
    }
  }
  if (targets.Targets > 0) {
    figures.Targets = targets;
  }
}

std::optional<ReadingFigures> MeasureReadings(const SurveyFacts& survey, const Plan& plan)
{
  ReadingFigures figures;
  for (const PlanSite& site : plan.Sites) {
    const auto difference = ReadingDifference(survey, site.Site);
    if (!difference) {
      continue;
    }
    figures.Differing += *difference > DifferingReading ? 1 : 0;
    if (++figures.Judged == 1 || *difference > figures.Largest) {
      figures.Largest = *difference;
      figures.LargestAt = site.Site;
    }
  }
  return figures.Judged > 0 ? std::optional(figures) : std::nullopt;
}

ChanceFigures CountChance(const std::vector<RandomPlanFigures>& plans, double dEfficiency,
                          double smallestDistance)
{
  const auto reachesBoth = [&](const RandomPlanFigures& plan) {
    return plan.DEfficiency && *plan.DEfficiency >= dEfficiency && plan.SmallestDistance >= smallestDistance;
  };
  return {static_cast<int>(plans.size()), static_cast<int>(std::ranges::count_if(plans, reachesBoth))};
}

}  // namespace

double TargetMiss(const SurveyFacts& survey, std::size_t site, const std::array<double, 2>& target)
{
  const double d1 = survey.Z1[site] - target[0];
  if (!survey.TwoSignals()) {
    return std::abs(d1);
  }
  const double d2 = survey.Z2[site] - target[1];
  return std::sqrt(d1 * d1 + d2 * d2);
}

PlanFigures MeasurePlan(const SurveyFacts& survey, const Plan& plan)
{
  const std::vector<std::size_t> sites = plan.Places();
  const ResponseModel model(survey, sites.size());
  PlanFigures figures;
  figures.Sites = sites.size();
  figures.Terms = model.TermCount();
  figures.Model = MeasureModel(survey, model, sites);
  MeasureTargets(survey, plan, figures);
  if (sites.size() > 1) {
    figures.Spread = MeasureSpread(survey, sites, PolygonArea(ConvexHull(survey.X, survey.Y)));
  }
  figures.Coverage = MeanDistanceToPlan(survey, sites);
  figures.Readings = MeasureReadings(survey, plan);
  return figures;
}

PlanStanding RankPlan(const SurveyFacts& survey, const Plan& plan, const PlanFigures& figures)
{
  constexpr int PlansDrawn = 1000;
  PlanStanding standing;
  standing.Proof = Certify(plan);
  const std::size_t most = std::min(MostSitesForRandomPlans, survey.Available.size());
  if (!figures.Model || !figures.Spread || figures.Sites > most) {
    return standing;
  }
  const ResponseModel model(survey, figures.Sites);
  standing.Equivalent = FindEquivalentSites(survey, model, figures.Sites, figures.Model->MeanVariance);
  standing.Chance = CountChance(DrawRandomPlans(survey, model, figures.Sites, PlansDrawn),
                                figures.Model->DEfficiency, figures.Spread->SmallestDistance);
  return standing;
}

}  // namespace veln
