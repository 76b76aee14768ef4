#include "logger/survey_sidecar.h"

#include "logger/option_rules.h"
#include "toolkit/refusal.h"
#include "toolkit/utf8.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace veln {

namespace {

using Json = nlohmann::ordered_json;

constexpr int Schema = 1;
constexpr int Indent = 2;

Json NumberOrNull(double value)
{
  return std::isfinite(value) ? Json(value) : Json(nullptr);
}

Json RecognisedOf(const FileAccount& file)
{
  const ColumnRoles& roles = file.Form.Roles;
  const auto name = [&file](std::size_t column) { return Json(file.Form.Columns.at(column).Name); };
  const auto nameOrNull = [&name](const std::optional<std::size_t>& column) {
    return column ? name(*column) : Json(nullptr);
  };
  Json signals = Json::array();
  for (std::size_t i = 0; i < roles.SignalCount; ++i) {
    signals.push_back(name(roles.Signals.at(i)));
  }
  return {{"form", file.Form.Records ? "records of 26 bytes" : DescribeForm(file.Form.Text)},
          {roles.Geographic ? "lat" : "x", name(roles.First)},
          {roles.Geographic ? "lon" : "y", name(roles.Second)},
          {"signals", signals},
          {"time", nameOrNull(roles.Time)},
          {"date", nameOrNull(roles.Date)},
          {"row", nameOrNull(roles.Row)},
          {"id", nameOrNull(roles.Id)}};
}

Json SourcesOf(const Readings& source)
{
  Json list = Json::array();
  for (const FileAccount& file : source.Files) {
    list.push_back({{"file", file.Path.string()},
                    {"sha256", file.Digest},
                    {"lines", file.Lines},
                    {"recognised", RecognisedOf(file)}});
  }
  return list;
}

Json PathsOf(const std::vector<std::filesystem::path>& paths)
{
  Json list = Json::array();
  for (const auto& path : paths) {
    list.push_back(path.string());
  }
  return list;
}

Json OptionsOf(const ConversionOptions& options)
{
  Json list = Json::object();
  for (const OptionRule& rule : OptionRules()) {
    if (const auto value = rule.Write(options)) {
      list[rule.Name] = *value;
    }
  }
  if (!options.Boundaries.empty()) {
    list["boundary"] = PathsOf(options.Boundaries);
  }
  if (!options.Exclusions.empty()) {
    list["exclude"] = PathsOf(options.Exclusions);
  }
  return list;
}

/// Areas as GeoJSON has them, in the survey's coordinates.
Json AreasOf(const std::vector<Polygon>& polygons)
{
  if (polygons.empty()) {
    return nullptr;
  }
  Json areas = Json::array();
  for (const Polygon& polygon : polygons) {
    Json rings = Json::array();
    for (const Ring& ring : polygon.Rings()) {
      Json line = Json::array();
      for (const PlanePoint& point : ring) {
        line.push_back({point.X, point.Y});
      }
      line.push_back({ring.front().X, ring.front().Y});
      rings.push_back(std::move(line));
    }
    areas.push_back(std::move(rings));
  }
  return {{"type", "MultiPolygon"}, {"coordinates", std::move(areas)}};
}

Json CountsOf(const LineAccount& account)
{
  Json joined = Json::object();
  Json dropped = Json::object();
  if (account.NotEveryNth > 0) {
    dropped["not every N-th"] = account.NotEveryNth;
  }
  for (std::size_t i = 1; i < account.Fates.size(); ++i) {
    const auto fate = static_cast<Fate>(i);
    if (account.Fates.at(i).Count > 0) {
      (IsDropped(fate) ? dropped : joined)[std::string(FateText(fate))] = account.Fates.at(i).Count;
    }
  }
  return {{"lines", account.Lines},       {"header", account.Header}, {"comment", account.Comments},
          {"blank", account.Blank},       {"sites", account.Sites()}, {"joined", std::move(joined)},
          {"dropped", std::move(dropped)}};
}

/// The lines of a file that had one fate, as ranges of neighbours: "3-5, 9".
std::string LineRanges(const Readings& source, const FileAccount& file, Fate fate)
{
  std::string text;
  const std::size_t end = file.FirstReading + file.ReadingCount;
  for (std::size_t i = file.FirstReading; i < end; ++i) {
    if (source.Fates[i] != fate) {
      continue;
    }
    const std::size_t first = i;
    while (i + 1 < end && source.Fates[i + 1] == fate && source.Lines[i + 1] == source.Lines[i] + 1) {
      ++i;
    }
    text += (text.empty() ? "" : ", ") + std::to_string(source.Lines[first]);
    text += i > first ? "-" + std::to_string(source.Lines[i]) : "";
  }
  return text;
}

/// Every dropped line with its reason. Those that --every left out are told by their count: they are all
/// readings but every so many-th.
Json DroppedOf(const Readings& source, std::size_t every)
{
  Json list = Json::array();
  for (const FileAccount& file : source.Files) {
    if (file.NotEveryNth > 0) {
      list.push_back({{"file", file.Path.string()},
                      {"reason", "not every N-th"},
                      {"every", every},
                      {"count", file.NotEveryNth}});
    }
    for (std::size_t i = 0; i < FateCount; ++i) {
      const auto fate = static_cast<Fate>(i);
      const std::string lines = IsDropped(fate) ? LineRanges(source, file, fate) : "";
      if (!lines.empty()) {
        list.push_back({{"file", file.Path.string()}, {"reason", FateText(fate)}, {"lines", lines}});
      }
    }
  }
  return list;
}

Json SignalsOf(const Conversion& conversion)
{
  Json list = Json::array();
  for (const SignalSummary& signal : conversion.Signals) {
    list.push_back({{"label", signal.Label},
                    {"unit", signal.Unit},
                    {"mean", NumberOrNull(signal.Mean)},
                    {"std", NumberOrNull(signal.Deviation)},
                    {"min", signal.Minimum},
                    {"max", signal.Maximum},
                    {"nonpositive", signal.NonPositive},
                    {"nonpositive_readings", signal.NonPositiveReadings}});
  }
  return list;
}

Json RowsOf(const RowSummary& rows)
{
  const double share =
      rows.Sites == 0 ? 0 : static_cast<double>(rows.SitesInRows) / static_cast<double>(rows.Sites);
  return {{"found", rows.Rows},
          {"sites", rows.Sites},
          {"sites_in_rows", rows.SitesInRows},
          {"share", share},
          {"track_metres", rows.TrackMetres},
          {"row_metres", rows.RowMetres}};
}

/// What sidecar and report share.
Json FactsOf(const Conversion& conversion)
{
  const bool two = conversion.Source.SignalCount == 2;
  Json labels = Json::array({conversion.Source.Labels[0]});
  if (two) {
    labels.push_back(conversion.Source.Labels[1]);
  }
  const std::string known = KnownUnits(conversion.Source.Units[0]);
  return {{"type", conversion.Rows.HasRows ? "transect" : "grid"},
          {"site_id", false},
          {"s2", two},
          {"labels", labels},
          {"units", known.empty() ? conversion.Source.Units[0] : known},
          {"crs", TextOf(conversion.Crs)},
          {"sources", SourcesOf(conversion.Source)},
          {"options", OptionsOf(conversion.Options)},
          {"jump_metres", conversion.JumpMetres},
          {"counts", CountsOf(conversion.Account)},
          {"rows", RowsOf(conversion.Rows)},
          {"signals", SignalsOf(conversion)},
          {"boundary", AreasOf(conversion.Boundary)},
          {"exclusions", AreasOf(conversion.Exclusions)},
          {"dropped", DroppedOf(conversion.Source, conversion.Options.Reading.Every)}};
}

std::string TextOf(const Json& document)
{
  // A path may hold bytes that are not UTF-8; the document shows them as U+FFFD.
  return document.dump(Indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

[[noreturn]] void RefuseKey(const std::string& key)
{
  throw Refusal("\"" + key + "\" is missing or not of its kind");
}

template <class Value>
Value Member(const Json& document, const char* key)
{
  try {
    return document.at(key).get<Value>();
  } catch (const Json::exception&) {
    RefuseKey(key);
  }
}

std::vector<Polygon> ReadPolygons(const Json& document, const char* key)
{
  std::vector<Polygon> polygons;
  if (!document.contains(key) || document[key].is_null()) {
    return polygons;
  }
  using Coordinates = std::vector<std::vector<std::vector<std::array<double, 2>>>>;
  for (const auto& area : Member<Coordinates>(Member<Json>(document, key), "coordinates")) {
    std::vector<Ring> rings;
    for (const auto& line : area) {
      Ring& ring = rings.emplace_back();
      std::ranges::transform(line, std::back_inserter(ring),
                             [](const auto& point) { return PlanePoint{point[0], point[1]}; });
    }
    if (rings.empty() || rings.front().empty()) {
      RefuseKey(key);
    }
    polygons.emplace_back(std::move(rings));
  }
  return polygons;
}

}  // namespace

std::filesystem::path SidecarPath(const std::filesystem::path& survey)
{
  return survey.parent_path() / (survey.stem().string() + ".survey.json");
}

SurveySidecar ReadSidecar(std::string_view content)
{
  const Json document = Json::parse(content, nullptr, false);
  if (!document.is_object()) {
    throw Refusal("it is no JSON document");
  }
  if (Member<int>(document, "schema") > Schema) {
    throw Refusal("it was written by a newer version of the program");
  }
  SurveySidecar sidecar;
  const auto labels = Member<std::vector<std::string>>(document, "labels");
  const auto type = Member<std::string>(document, "type");
  const auto crs = ReadCoordinateSystem(Member<std::string>(document, "crs"));
  sidecar.SurveyDigest = Member<std::string>(document, "survey_sha256");
  sidecar.SecondSignal = Member<bool>(document, "s2");
  sidecar.Transect = type == "transect";
  sidecar.Units = Member<std::string>(document, "units");
  if (type != "transect" && type != "grid") {
    RefuseKey("type");
  }
  constexpr std::size_t LongestLabel = 10;
  const bool sound = std::ranges::all_of(labels, [](const std::string& label) {
    return CharacterCount(label) <= LongestLabel && label.find_first_of("\r\n") == std::string::npos;
  });
  if (!sound || labels.size() != (sidecar.SecondSignal ? 2U : 1U)) {
    RefuseKey("labels");
  }
  if (!crs) {
    RefuseKey("crs");
  }
  sidecar.Crs = *crs;
  std::ranges::copy(labels, sidecar.Labels.begin());
  sidecar.Boundary = ReadPolygons(document, "boundary");
  sidecar.Exclusions = ReadPolygons(document, "exclusions");
  return sidecar;
}

std::string ComposeSidecar(const Conversion& conversion, const std::string& surveyDigest)
{
  Json document = {{"schema", Schema}, {"kind", "survey"}, {"survey_sha256", surveyDigest}};
  document.update(FactsOf(conversion));
  return TextOf(document);
}

std::string ComposeConversionJson(const Conversion& conversion,
                                  const std::vector<std::filesystem::path>& files)
{
  Json document = {{"schema", Schema}, {"kind", "conversion"}};
  document.update(FactsOf(conversion));
  document["extent"] = {{"x_min", conversion.Low.X},
                        {"x_max", conversion.High.X},
                        {"y_min", conversion.Low.Y},
                        {"y_max", conversion.High.Y}};
  document["spacing_metres"] = conversion.MedianSpacing;
  document["notes"] = conversion.Notes;
  Json advice = Json::array();
  for (const Advice& one : conversion.Advices) {
    advice.push_back({{"code", one.Code}, {"text", one.Text}});
  }
  document["advice"] = advice;
  document["files"] = PathsOf(files);
  return TextOf(document);
}

}  // namespace veln
