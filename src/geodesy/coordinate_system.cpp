#include "geodesy/coordinate_system.h"

#include "toolkit/number_text.h"

#include <GeographicLib/UTMUPS.hpp>
#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <utility>

namespace veln {

namespace {

constexpr int ZoneCount = 60;
constexpr int NorthernUtm = 32'600;
constexpr int SouthernUtm = 32'700;

std::optional<int> ParseWhole(std::string_view text)
{
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// "31N", "31s".
std::optional<CoordinateSystem> ReadZone(std::string_view text)
{
  if (text.empty()) {
    return std::nullopt;
  }
  const auto side = std::toupper(static_cast<unsigned char>(text.back()));
  const auto zone = ParseWhole(text.substr(0, text.size() - 1));
  if (!zone || *zone < 1 || *zone > ZoneCount || (side != 'N' && side != 'S')) {
    return std::nullopt;
  }
  return UtmSystem(*zone, side == 'N');
}

/// The UTM zones among the EPSG numbers: WGS 84, ETRS89 (northern) and GDA94 (southern).
std::optional<CoordinateSystem> ReadEpsg(std::string_view text)
{
  struct Block {
    int Base, FirstZone, LastZone;
    bool North;
  };
  constexpr std::array<Block, 4> Blocks = {{{NorthernUtm, 1, ZoneCount, true},
                                            {SouthernUtm, 1, ZoneCount, false},
                                            {25'800, 28, 38, true},
                                            {28'300, 46, 59, false}}};
  const auto number = ParseWhole(text);
  for (const Block& block : Blocks) {
    if (number && *number >= block.Base + block.FirstZone && *number <= block.Base + block.LastZone) {
      return UtmSystem(*number - block.Base, block.North);
    }
  }
  return std::nullopt;
}

/// The settings by their names in the text.
constexpr std::array<std::pair<std::string_view, double TransverseMercatorSettings::*>, 5> SettingNames = {
    {{"lon0", &TransverseMercatorSettings::Lon0},
     {"lat0", &TransverseMercatorSettings::Lat0},
     {"k0", &TransverseMercatorSettings::K0},
     {"fe", &TransverseMercatorSettings::FalseEasting},
     {"fn", &TransverseMercatorSettings::FalseNorthing}}};

bool ReadSetting(std::string_view item, TransverseMercatorSettings& settings)
{
  const std::size_t equals = std::min(item.find('='), item.size());
  const auto* const found =
      std::ranges::find(SettingNames, item.substr(0, equals), &decltype(SettingNames)::value_type::first);
  const auto value = ParseNumber(item.substr(std::min(equals + 1, item.size())));
  if (found == SettingNames.end() || !value) {
    return false;
  }
  settings.*found->second = *value;
  return true;
}

std::optional<CoordinateSystem> ReadSettings(std::string_view text)
{
  constexpr double HighestLatitude = 90;
  constexpr double HighestLongitude = 180;
  CoordinateSystem system;
  system.Type = CoordinateSystem::Kind::TransverseMercator;
  system.Settings.Lon0 = std::nan("");
  while (!text.empty()) {
    const std::size_t comma = std::min(text.find(','), text.size());
    if (!ReadSetting(text.substr(0, comma), system.Settings)) {
      return std::nullopt;
    }
    text.remove_prefix(std::min(comma + 1, text.size()));
  }
  const auto& [lon0, lat0, k0, fe, fn] = system.Settings;
  const bool sound = std::abs(lon0) <= HighestLongitude && std::abs(lat0) <= HighestLatitude && k0 > 0;
  return sound ? std::optional(system) : std::nullopt;
}

}  // namespace

CoordinateSystem UtmSystem(int zone, bool north)
{
  constexpr double DegreesPerZone = 6;
  constexpr double FirstMeridian = -177;
  constexpr double SouthernNorthing = 10'000'000;
  CoordinateSystem system;
  system.Type = CoordinateSystem::Kind::Utm;
  system.Zone = zone;
  system.North = north;
  system.Settings.Lon0 = FirstMeridian + DegreesPerZone * (zone - 1);
  system.Settings.FalseNorthing = north ? 0 : SouthernNorthing;
  return system;
}

std::optional<CoordinateSystem> UtmSystemOf(double latitude, double longitude)
{
  const int zone = GeographicLib::UTMUPS::StandardZone(latitude, longitude);
  if (zone < 1) {
    return std::nullopt;
  }
  return UtmSystem(zone, latitude >= 0);
}

std::optional<CoordinateSystem> ReadCoordinateSystem(std::string_view text)
{
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(),
                         [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  const std::string_view all = lower;
  const std::size_t colon = std::min(all.find(':'), all.size());
  const std::string_view value = all.substr(std::min(colon + 1, all.size()));
  if (all == "local") {
    return CoordinateSystem{};
  }
  if (all.starts_with("utm:")) {
    return ReadZone(value);
  }
  if (all.starts_with("epsg:")) {
    return ReadEpsg(value);
  }
  return all.starts_with("tm:") ? ReadSettings(value) : std::nullopt;
}

std::string TextOf(const CoordinateSystem& system)
{
  switch (system.Type) {
    case CoordinateSystem::Kind::Local:
      return "local";
    case CoordinateSystem::Kind::Utm:
      return "utm:" + ShortestForm(system.Zone) + (system.North ? "N" : "S");
    case CoordinateSystem::Kind::TransverseMercator:
      break;
  }
  std::string text = "tm:";
  for (const auto& [name, setting] : SettingNames) {
    text +=
        (text.ends_with(':') ? "" : ",") + std::string(name) + "=" + ShortestForm(system.Settings.*setting);
  }
  return text;
}

std::optional<int> EpsgNumber(const CoordinateSystem& system)
{
  if (system.Type != CoordinateSystem::Kind::Utm) {
    return std::nullopt;
  }
  return (system.North ? NorthernUtm : SouthernUtm) + system.Zone;
}

}  // namespace veln
