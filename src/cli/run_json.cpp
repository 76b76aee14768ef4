#include "cli/run_json.h"

#include "cli/quality_json.h"
#include "toolkit/dialogs.h"
#include "workspace/captions.h"
#include "workspace/version.h"

#include <nlohmann/json.hpp>

#include <ranges>

namespace veln {

namespace {

using Json = nlohmann::ordered_json;

constexpr double Hundredths = 100;

/// A number without the sign of a zero.
Json Number(double value)
{
  return value == 0 ? 0.0 : value;
}

/// What a step that may not have run did, or null.
template <class Value, class Compose>
Json OrNull(const std::optional<Value>& value, Compose compose)
{
  return value ? Json(compose(*value)) : Json(nullptr);
}

Json SignalsOf(const SurveyState& state)
{
  Json list = Json::array();
  for (const auto& [label, statistics] : state.Signals.Rows | std::views::take(state.SignalCount)) {
    list.push_back({{"label", label},
                    {"n", state.SurveySize},
                    {"mean", Number(statistics.Mean)},
                    {"std", Number(statistics.Std)},
                    {"min", Number(statistics.Minimum)},
                    {"max", Number(statistics.Maximum)}});
  }
  return list;
}

Json DecorrelationsOf(const RunOptions& options, const RunRecord& record)
{
  Json list = Json::array();
  for (const DecorrelationRound& round : record.Decorrelations) {
    list.push_back({{"sites", round.Sites},
                    {"masking_level", options.Levels.Masking / Hundredths},
                    {"outlier_level", options.Levels.Outlier / Hundredths},
                    {"masked", round.Counts.MaskedCount},
                    {"outliers", round.Counts.OutlierCount}});
  }
  return list;
}

Json ReductionOf(const RunOptions& options, const RunRecord& record)
{
  if (!options.Reduction || !record.ReducedTo) {
    return nullptr;
  }
  return {{"percent", options.Reduction->Percent}, {"available", *record.ReducedTo}};
}

Json CombinationOf(int stratum, int factorIndex, const std::optional<double>& score)
{
  return {{"stratum", stratum},
          {"d_factor", DFactorOf(factorIndex) / Hundredths},
          {"opt_criteria", OrNull(score, Number)}};
}

Json SelectionOf(const SelectionScores& scores)
{
  Json list = Json::array();
  for (const Combination& combination : CombinationsOf(scores)) {
    list.push_back(CombinationOf(combination.Stratum, combination.FactorIndex, ScoreOf(scores, combination)));
  }
  const SelectionSummary summary = SummariseScores(scores);
  Json best = nullptr;
  Json limit = nullptr;
  if (summary.Best) {
    best = CombinationOf(summary.Best->Stratum, summary.Best->FactorIndex, summary.BestScore);
    limit = summary.Limit;
  }
  return {{"strata", scores.pnum}, {"limited", scores.Scope == SelectionScope::Limited},
          {"scores", list},        {"best", best},
          {"limit", limit},        {"acceptable", summary.Acceptable}};
}

Json PointListOf(const Design& design)
{
  Json points = Json::array();
  for (const DesignPoint& point : PointsOf(design)) {
    Json entry = {{"point", point.Number},
                  {"site_id", point.Site.SiteId},
                  {"x", Number(point.Site.X)},
                  {"y", Number(point.Site.Y)},
                  {"support_site", point.Support}};
    if (!point.Support) {
      entry["alternates"] = {point.Alternates[0].SiteId, point.Alternates[1].SiteId};
    }
    points.push_back(std::move(entry));
  }
  return points;
}

Json DesignsOf(const RunRecord& record, const SurveyState& state)
{
  Json list = Json::array();
  for (const SavedDesign& saved : record.Designs) {
    const DesignSettings& settings = saved.Made.Settings;
    list.push_back({{"number", saved.Number},
                    {"size", saved.Made.PointCount()},
                    {"d_factor", settings.DFactor},
                    {"strata", settings.Parsing.ParseDenominator},
                    {"stratum", settings.Parsing.ParseModulus + 1},
                    {"ignore_ta", settings.IgnoreTA},
                    {"support", settings.IncludeSupportSites},
                    {"opt_criteria", Number(saved.Made.OptCriteria)},
                    {"loop_count", saved.Made.LoopCount},
                    {"points", PointListOf(saved.Made)},
                    {"quality", QualityJson(saved.Quality, state)}});
  }
  return list;
}

Json FilesOf(const RunRecord& record)
{
  Json list = Json::array();
  for (const auto& file : record.Files) {
    list.push_back(file.string());
  }
  return list;
}

Json AdviceOf(const RunRecord& record)
{
  Json list = Json::array();
  for (const Advice& advice : record.Advices) {
    list.push_back({{"code", advice.Code}, {"text", advice.Text}});
  }
  return list;
}

}  // namespace

std::string ComposeRunJson(const RunOptions& options, const RunRecord& record, const SurveyState& state)
{
  const ImportRequest& import = options.Import;
  const auto counted = [](const char* name) { return [name](int count) { return Json{{name, count}}; }; };
  constexpr int Schema = 1;
  const Json document = {
      {"schema", Schema},
      {"program", ProgramTitle},
      {"version", ProgramVersion},
      {"import",
       {{"file", import.FileName},
        {"type", SurveyTypeText(state.Kind)},
        {"sites", record.ImportedSites},
        {"signals", state.SignalCount},
        {"log", import.Log},
        {"units", UnitsText(import.Units)}}},
      {"signals", SignalsOf(state)},
      {"corr", OrNull(state.Signals.Correlation, Number)},
      {"decorrelation", DecorrelationsOf(options, record)},
      {"deleted", state.DeletedSiteCount},
      {"validations", state.ValidationCount},
      {"edge_buffer", OrNull(record.EdgeMasked, counted("masked"))},
      {"transition", OrNull(record.HighScores, counted("high"))},
      {"reduction", ReductionOf(options, record)},
      {"ads", OrNull(record.Selection, SelectionOf)},
      {"designs", DesignsOf(record, state)},
      {"manual", OrNull(record.ManualSites, [](const auto& sites) { return Json{{"sites", sites}}; })},
      {"files", FilesOf(record)},
      {"notes", record.Notes},
      {"advice", AdviceOf(record)}};
  constexpr int Indent = 2;
  // A path may hold bytes that are not UTF-8; the document shows them as U+FFFD.
  return document.dump(Indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace veln
