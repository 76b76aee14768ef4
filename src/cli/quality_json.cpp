#include "cli/quality_json.h"

namespace veln {

namespace {

using Json = nlohmann::ordered_json;

template <class Value>
Json OrNull(const std::optional<Value>& value)
{
  return value ? Json(*value) : Json(nullptr);
}

void PutModel(Json& json, const PlanFigures& figures, const SurveyState& state)
{
  const bool known = figures.Model.has_value();
  const ModelFigures model = figures.Model.value_or(ModelFigures{});
  json["model_terms"] = figures.Terms;
  json["d_efficiency"] = known ? Json(model.DEfficiency) : Json(nullptr);
  json["mean_variance"] = known ? Json(model.MeanVariance) : Json(nullptr);
  json["largest_variance"] = known ? Json(model.LargestVariance) : Json(nullptr);
  json["largest_variance_site"] = known ? Json(state.SiteId[model.LargestAt]) : Json(nullptr);
}

void PutEquivalent(Json& json, const std::optional<EquivalentSites>& equivalent)
{
  const EquivalentSites sites = equivalent.value_or(EquivalentSites{});
  const bool over = equivalent && !sites.Sites;
  json["equivalent_random_sites"] = OrNull(sites.Sites);
  json["equivalent_random_sites_over"] = over ? Json(sites.Most) : Json(nullptr);
}

Json TargetsJson(const PlanFigures& figures)
{
  if (!figures.Targets) {
    return nullptr;
  }
  Json misses = Json::array();
  for (const auto& miss : figures.Misses) {
    misses.push_back(OrNull(miss));
  }
  return {{"count", figures.Targets->Targets},
          {"missed", figures.Targets->Missed},
          {"worst_miss", figures.Targets->WorstMiss},
          {"worst_point", figures.Targets->WorstPoint},
          {"misses", misses}};
}

Json SpreadJson(const DesignQuality& quality, const SurveyState& state)
{
  if (!quality.Figures.Spread) {
    return nullptr;
  }
  const SpreadFigures& spread = *quality.Figures.Spread;
  return {
      {"smallest_distance", spread.SmallestDistance},
      {"between", {state.SiteId[quality.Sites[spread.First]], state.SiteId[quality.Sites[spread.Second]]}},
      {"mean_nearest", spread.MeanNearest},
      {"smallest_ratio", OrNull(spread.SmallestRatio)},
      {"mean_ratio", OrNull(spread.MeanRatio)}};
}

Json ReadingsJson(const std::optional<ReadingFigures>& readings, const SurveyState& state)
{
  if (!readings) {
    return nullptr;
  }
  return {{"judged", readings->Judged},
          {"differing", readings->Differing},
          {"largest", readings->Largest},
          {"largest_site", state.SiteId[readings->LargestAt]}};
}

Json CertificateJson(const std::optional<Certificate>& proof)
{
  if (!proof) {
    return nullptr;
  }
  return {{"combinations", proof->Combinations},
          {"proven", proof->Proven},
          {"percent_below", proof->PercentBelow},
          {"opt_criteria", proof->OptCriteria},
          {"best_opt_criteria", proof->BestOptCriteria},
          {"greatest_smallest_distance", OrNull(proof->GreatestSmallestDistance)}};
}

}  // namespace

Json QualityJson(const std::optional<DesignQuality>& quality, const SurveyState& state)
{
  if (!quality) {
    return nullptr;
  }
  const PlanFigures& figures = quality->Figures;
  const std::optional<ChanceFigures>& chance = quality->Standing.Chance;
  Json json;
  PutModel(json, figures, state);
  PutEquivalent(json, quality->Standing.Equivalent);
  json["targets"] = TargetsJson(figures);
  json["spread"] = SpreadJson(*quality, state);
  json["coverage"] = figures.Coverage;
  json["chance"] = chance ? Json{{"plans", chance->Plans}, {"both", chance->Both}} : Json(nullptr);
  json["readings"] = ReadingsJson(figures.Readings, state);
  json["certificate"] = CertificateJson(quality->Standing.Proof);
  return json;
}

}  // namespace veln
