#pragma once

#include "toolkit/drawing.h"

#include <span>

class QPainter;

namespace veln {

class MarkPainter;

/// Paints marks on a page that keeps shapes: dots and lines of one pen go into one path as long as nothing of
/// another colour was drawn over them in between, so that the picture is that of the marks' order and small.
/// `paint` does all other marks.
void PaintLayered(QPainter& painter, const Drawing& drawing, std::span<const DrawMark> marks,
                  MarkPainter& paint);

}  // namespace veln
