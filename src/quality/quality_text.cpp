#include "quality/quality_text.h"

#include "toolkit/number_text.h"

namespace veln {

namespace {

std::string Fixed(double value, const char* pattern = "0.00")
{
  return FormatNumber(value, pattern);
}

/// A count with a comma before each three digits from behind: 59,049.
std::string Grouped(double count)
{
  constexpr std::size_t Digits = 3;
  std::string text = Fixed(count, "0");
  for (std::size_t at = text.size(); at > Digits;) {
    at -= Digits;
    text.insert(at, ",");
  }
  return text;
}

std::string SiteAt(const SurveyFacts& survey, std::size_t place)
{
  return Fixed(survey.SiteId[place], "0");
}

std::string ModelLine(const SurveyFacts& survey, const PlanFigures& figures)
{
  if (!figures.Model) {
    return "D none: the sites can not estimate a model of " + Fixed(static_cast<double>(figures.Terms), "0") +
           " terms";
  }
  const ModelFigures& model = *figures.Model;
  return "D " + Fixed(model.DEfficiency, "0.000") + ", prediction variance " + Fixed(model.MeanVariance) +
         " in the mean, " + Fixed(model.LargestVariance) + " at most (site " +
         SiteAt(survey, model.LargestAt) + ")";
}

std::string TargetLine(const PlanFigures& figures)
{
  if (!figures.Targets) {
    return "no targets: the sites were picked by hand";
  }
  const TargetFigures& targets = *figures.Targets;
  const std::string worst = Fixed(targets.WorstMiss) + " sd at point " + Fixed(targets.WorstPoint, "0");
  if (targets.Missed == 0) {
    return "all " + Fixed(targets.Targets, "0") + " targets reached within " + Fixed(CountedMiss, "0.0") +
           " sd, the worst miss " + worst;
  }
  return Fixed(targets.Missed, "0") + " of " + Fixed(targets.Targets, "0") + " targets missed by more than " +
         Fixed(CountedMiss, "0.0") + " sd, the worst by " + worst;
}

std::string SpreadLine(const SurveyFacts& survey, const Plan& plan, const PlanFigures& figures)
{
  if (!figures.Spread) {
    return "no distance: the plan has one site";
  }
  const SpreadFigures& spread = *figures.Spread;
  return "smallest distance " + Fixed(spread.SmallestDistance, "0.0##") + ", sites " +
         SiteAt(survey, plan.Sites[spread.First].Site) + " and " +
         SiteAt(survey, plan.Sites[spread.Second].Site) +
         (spread.SmallestRatio ? " (" + Fixed(*spread.SmallestRatio) + " of an even spacing)" : "");
}

std::string ReadingLine(const SurveyFacts& survey, const PlanFigures& figures)
{
  if (!figures.Readings) {
    return "readings not judged: there are no neighbours in rows";
  }
  const ReadingFigures& readings = *figures.Readings;
  return Fixed(readings.Differing, "0") + " of " + Fixed(readings.Judged, "0") +
         " readings differ from their neighbours by more than " + Fixed(DifferingReading, "0") +
         " sd, the most " + Fixed(readings.Largest) + " sd at site " + SiteAt(survey, readings.LargestAt);
}

std::string EquivalentLine(const EquivalentSites& equivalent)
{
  const std::string condition = " random sites, if the model holds and errors are independent";
  return equivalent.Sites
             ? "about as sure as " + Fixed(static_cast<double>(*equivalent.Sites), "0") + condition
             : "surer than " + Fixed(static_cast<double>(equivalent.Most), "0") + condition;
}

std::string ProofLine(const Certificate& proof)
{
  const std::string all = Grouped(static_cast<double>(proof.Combinations));
  if (proof.IsBest()) {
    return "spread proven best of " + all + " combinations";
  }
  const std::string percent = Fixed(proof.PercentBelow, "0.0") + " %";
  return proof.Proven ? "spread " + percent + " below the best of " + all + " (Opt-Criteria " +
                            Fixed(proof.OptCriteria, "0.000") + ", possible " +
                            Fixed(proof.BestOptCriteria, "0.000") + ")"
                      : "spread within " + percent + " of the best of " + all;
}

}  // namespace

std::vector<std::string> ShortQualityLines(const SurveyFacts& survey, const Plan& plan,
                                           const PlanFigures& figures)
{
  return {ModelLine(survey, figures), TargetLine(figures), SpreadLine(survey, plan, figures),
          ReadingLine(survey, figures),
          "mean distance to the nearest site of the plan " + Fixed(figures.Coverage, "0.0##")};
}

std::vector<std::string> StandingLines(const PlanStanding& standing)
{
  std::vector<std::string> lines;
  if (standing.Equivalent) {
    lines.push_back(EquivalentLine(*standing.Equivalent));
  }
  if (standing.Chance) {
    lines.push_back(Grouped(standing.Chance->Both) + " of " + Grouped(standing.Chance->Plans) +
                    " random plans reach both its D and its smallest distance");
  }
  if (standing.Proof) {
    lines.push_back(ProofLine(*standing.Proof));
    if (standing.Proof->GreatestSmallestDistance) {
      lines.push_back("greatest possible smallest distance between target points " +
                      Fixed(*standing.Proof->GreatestSmallestDistance, "0.0##"));
    }
  }
  return lines;
}

}  // namespace veln
