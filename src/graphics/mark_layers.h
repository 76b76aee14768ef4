#pragma once

#include "toolkit/drawing.h"

#include <span>
#include <vector>

namespace veln {

/// Dots and lines of one pen that can be drawn together, in their order, or a box or a text alone.
struct MarkLayer {
  Pen Stroke;
  std::vector<const DrawMark*> Marks;
};

/// Layers that, drawn one after the other, give the picture of the marks' own order with far fewer changes of
/// the pen: a dot or line goes to the first layer of its pen above everything of another colour that lies
/// under it. Left out are marks off the drawing's surface, and dots that one of the next two covers all over,
/// as a highlight does. `marks` are some of the drawing's own, which the layers point to.
std::vector<MarkLayer> LayersOf(const Drawing& drawing, std::span<const DrawMark> marks);

}  // namespace veln
