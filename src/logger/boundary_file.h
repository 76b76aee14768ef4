#pragma once

#include "logger/polygons.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// Reads the areas of a GeoJSON or KML file to the plane of a coordinate system: its polygons, wherever they
/// stand in it. KML is geographic. GeoJSON is geographic when all its numbers can be degrees and the system
/// is projected, and else in the system itself; a `crs` member, where there is one, must name the system or
/// be geographic. Throws Refusal with the file and the fault.
std::vector<Polygon> ReadAreas(const std::filesystem::path& path, const CoordinateSystem& system);

/// The same from a file's content; `name` is for messages.
std::vector<Polygon> ReadAreas(std::string_view content, const std::string& name,
                               const CoordinateSystem& system);

}  // namespace veln
