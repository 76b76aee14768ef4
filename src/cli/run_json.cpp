#include "cli/run_json.h"

#include "toolkit/dialogs.h"
#include "workspace/captions.h"
#include "workspace/version.h"

#include <nlohmann/json.hpp>

#include <array>
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
  constexpr std::array<int, 4> Shares = {50, 67, 75, 80};
  const int percent = Shares.at(static_cast<std::size_t>(options.Reduction.value_or(2) - 2));
  return OrNull(record.ReducedTo,
                [percent](int available) { return Json{{"percent", percent}, {"available", available}}; });
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
  return {{"strata", scores.pnum}, {"limited", scores.LOA}, {"scores", list},
          {"best", best},          {"limit", limit},        {"acceptable", summary.Acceptable}};
}

Json PointsOf(const Design& design)
{
  Json points = Json::array();
  const int targets = TargetPoints(design.Settings.Size);
  for (int point = 1; point <= design.PointCount(); ++point) {
    const PointCandidates& candidates = design.Sites.at(static_cast<std::size_t>(point) - 1);
    const CandidateSite& site = candidates[0];
    if (!site.Exists()) {
      continue;
    }
    const bool support = point > targets;
    Json entry = {{"point", point},
                  {"site_id", site.SiteId},
                  {"x", Number(site.X)},
                  {"y", Number(site.Y)},
                  {"support_site", support}};
    if (!support) {
      entry["alternates"] = {candidates[1].SiteId, candidates[2].SiteId};
    }
    points.push_back(std::move(entry));
  }
  return points;
}

Json DesignsOf(const RunRecord& record)
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
                    {"points", PointsOf(saved.Made)}});
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

}  // namespace

std::string ComposeRunJson(const RunOptions& options, const RunRecord& record, const SurveyState& state)
{
  const ImportRequest& import = options.Import;
  const auto counted = [](const char* name) { return [name](int count) { return Json{{name, count}}; }; };
  const Json document = {
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
      {"designs", DesignsOf(record)},
      {"manual", OrNull(record.ManualSites, [](const auto& sites) { return Json{{"sites", sites}}; })},
      {"files", FilesOf(record)},
      {"notes", record.Notes}};
  constexpr int Indent = 2;
  // A path may hold bytes that are not UTF-8; the document shows them as U+FFFD.
  return document.dump(Indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace veln
