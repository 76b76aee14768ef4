#include "logger/boundary_file.h"

#include "geodesy/angle_text.h"
#include "logger/kml_rings.h"
#include "toolkit/file_store.h"
#include "toolkit/refusal.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <utility>

namespace veln {

namespace {

using Json = nlohmann::json;
using Areas = std::vector<std::vector<Ring>>;

constexpr const char* NoGeoJson = " is no GeoJSON of polygons: ";

/// Reads the polygons of a GeoJSON document, whatever holds them.
class GeoJsonReader {
 public:
  explicit GeoJsonReader(const std::string& name) : name_(name) {}

  // NOLINTNEXTLINE(misc-no-recursion): no deeper than told below
  void Read(const Json& item, int depth = 0)
  {
    constexpr int DeepestNesting = 16;
    if (depth > DeepestNesting) {
      throw Refusal(name_ + NoGeoJson + "its parts are nested too deep.");
    }
    const std::string type = item.is_object() ? item.value("type", "") : "";
    if (type == "FeatureCollection") {
      ReadEach(item, "features", depth);
    } else if (type == "Feature" && item.contains("geometry") && item["geometry"].is_object()) {
      Read(item["geometry"], depth + 1);
    } else if (type == "GeometryCollection") {
      ReadEach(item, "geometries", depth);
    } else if (type == "Polygon") {
      ReadPolygon(Member(item, "coordinates"));
    } else if (type == "MultiPolygon") {
      for (const Json& polygon : Member(item, "coordinates")) {
        ReadPolygon(polygon);
      }
    }
  }

  Areas Take() { return std::move(areas_); }

 private:
  [[nodiscard]] const Json& Member(const Json& item, const char* key) const
  {
    if (!item.contains(key) || !item[key].is_array()) {
      throw Refusal(name_ + NoGeoJson + "\"" + key + "\" is missing.");
    }
    return item[key];
  }

  // NOLINTNEXTLINE(misc-no-recursion)
  void ReadEach(const Json& item, const char* key, int depth)
  {
    for (const Json& part : Member(item, key)) {
      Read(part, depth + 1);
    }
  }

  void ReadPolygon(const Json& rings)
  {
    std::vector<Ring>& area = areas_.emplace_back();
    for (const Json& ring : rings) {
      Ring& line = area.emplace_back();
      for (const Json& point : ring) {
        if (!point.is_array() || point.size() < 2 || !point[0].is_number() || !point[1].is_number()) {
          throw Refusal(name_ + NoGeoJson +
                        "a position is no pair of numbers: " + point.dump().substr(0, 60));
        }
        line.push_back({point[0].get<double>(), point[1].get<double>()});
      }
    }
  }

  const std::string& name_;
  Areas areas_;
};

/// Whether the document's `crs` member names geographic coordinates; empty without one. Throws Refusal for a
/// system that is neither that nor the survey's.
std::optional<bool> NamedGeographic(const Json& document, const std::string& name,
                                    const CoordinateSystem& system)
{
  if (!document.is_object() || !document.contains("crs") || document["crs"].is_null()) {
    return std::nullopt;
  }
  const std::string text = document["crs"].dump();
  const auto number = EpsgNumber(system);
  if (text.find("CRS84") != std::string::npos || text.find(":4326\"") != std::string::npos) {
    return true;
  }
  const std::size_t begin = text.find_last_of(':', text.find_last_of("0123456789")) + 1;
  const auto named =
      ReadCoordinateSystem("epsg:" + text.substr(begin, text.find_first_not_of("0123456789", begin) - begin));
  if (number && named == system) {
    return false;
  }
  throw Refusal(name + " is in another coordinate system than the survey (" + TextOf(system) + "): " + text +
                "; save it in degrees.");
}

bool CanBeDegrees(const Areas& areas)
{
  return std::ranges::all_of(areas, [](const auto& area) {
    return std::ranges::all_of(area, [](const Ring& ring) {
      return std::ranges::all_of(ring, [](const PlanePoint& point) {
        return IsInRange(point.X, AngleAxis::Longitude) && IsInRange(point.Y, AngleAxis::Latitude);
      });
    });
  });
}

void Project(Areas& areas, const CoordinateSystem& system, const std::string& name)
{
  const TransverseMercatorProjection projection(system);
  for (auto& area : areas) {
    for (Ring& ring : area) {
      for (PlanePoint& point : ring) {
        if (!projection.Covers(point.X)) {
          throw Refusal(
              name + " lies too far from the survey: longitude and latitude could be in each other's place.");
        }
        point = projection.Forward({point.Y, point.X});
      }
    }
  }
}

std::vector<Polygon> PolygonsOf(Areas areas, const std::string& name)
{
  constexpr std::size_t FewestPoints = 3;
  std::vector<Polygon> polygons;
  for (auto& area : areas) {
    for (Ring& ring : area) {
      if (ring.size() > 1 && ring.front().X == ring.back().X && ring.front().Y == ring.back().Y) {
        ring.pop_back();
      }
      if (ring.size() < FewestPoints) {
        throw Refusal(name + " holds a ring of fewer than three points.");
      }
    }
    if (!area.empty()) {
      polygons.emplace_back(std::move(area));
    }
  }
  if (polygons.empty()) {
    throw Refusal(name + " holds no polygon.");
  }
  return polygons;
}

Areas ReadGeoJson(std::string_view content, const std::string& name, const CoordinateSystem& system)
{
  Json document;
  GeoJsonReader reader(name);
  try {
    document = Json::parse(content);
    reader.Read(document);
  } catch (const Json::parse_error& error) {
    throw Refusal(name + " is neither KML nor GeoJSON: fault at byte " + std::to_string(error.byte) + ".");
  } catch (const Json::exception&) {
    throw Refusal(name + NoGeoJson + "a value is of another kind than it has to be.");
  }
  Areas areas = reader.Take();
  const bool geographic =
      NamedGeographic(document, name, system).value_or(system.IsProjected() && CanBeDegrees(areas));
  if (geographic && !system.IsProjected()) {
    throw Refusal(name + " is in degrees, and the survey's coordinates are local metres; tell --crs.");
  }
  if (geographic) {
    Project(areas, system, name);
  }
  return areas;
}

}  // namespace

std::vector<Polygon> ReadAreas(std::string_view content, const std::string& name,
                               const CoordinateSystem& system)
{
  const std::size_t first = content.find_first_not_of("\xEF\xBB\xBF \t\r\n");
  if (content.starts_with("PK")) {
    throw Refusal(name + " is packed (KMZ); unpack it and give the KML file in it.");
  }
  if (first != std::string_view::npos && content[first] == '<') {
    Areas areas = ReadKmlRings(content.substr(first), name);
    if (!system.IsProjected()) {
      throw Refusal(name + " is in degrees, and the survey's coordinates are local metres; tell --crs.");
    }
    Project(areas, system, name);
    return PolygonsOf(std::move(areas), name);
  }
  return PolygonsOf(ReadGeoJson(content, name, system), name);
}

std::vector<Polygon> ReadAreas(const std::filesystem::path& path, const CoordinateSystem& system)
{
  return ReadAreas(ReadFile(path), path.string(), system);
}

}  // namespace veln
