#pragma once

#include "toolkit/drawing.h"

#include <string>

namespace veln {

/// A drawing as an SVG 1.1 document of the drawing's own size in pixels, with coordinates in twips, 15 to a
/// pixel. Text stays text in a generic font. Dots of one pen share a path of round-capped points as long as
/// nothing of another colour was drawn over them in between, so that the picture is that of the drawing's
/// order. `title` is the document's title, none if empty.
std::string SvgText(const Drawing& drawing, const std::string& title = "");

}  // namespace veln
