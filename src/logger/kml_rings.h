#pragma once

#include "logger/polygons.h"

#include <string>
#include <string_view>
#include <vector>

namespace veln {

/// The polygons of a KML document as rings of longitude and latitude, the outer ring of each first. Throws
/// Refusal with the document's name and the line of the fault for what is no such document.
std::vector<std::vector<Ring>> ReadKmlRings(std::string_view content, const std::string& name);

}  // namespace veln
