#include "render/layered_marks.h"

#include "graphics/mark_layers.h"
#include "graphics/twip_surface.h"
#include "render/mark_painter.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cstdint>
#include <variant>
#include <vector>

namespace veln {

namespace {

/// Shapes of one pen.
struct PenPath {
  Pen Stroke;
  QPainterPath Path;
};

/// Shapes of one colour, by the widths of their pens.
using Layer = std::vector<PenPath>;

/// What is painted one after the other: a layer, or a mark of another kind as it stands.
using Element = std::variant<Layer, const DrawMark*>;

class LayerSorter {
 public:
  LayerSorter(const Drawing& drawing, const MarkPainter& paint)
      : paint_(paint),
        surface_(drawing),
        layers_(surface_.Width, surface_.Height, static_cast<std::int32_t>(TwipsPerPixel))
  {
  }

  void Add(const DrawMark& mark)
  {
    if (const auto* dot = std::get_if<DotMark>(&mark)) {
      AddDot(*dot);
    } else if (const auto* line = std::get_if<LineMark>(&mark)) {
      if (QPainterPath* path = PathFor(line->From, line->To, line->Stroke)) {
        path->moveTo(paint_.Map(line->From));
        path->lineTo(paint_.Map(line->To));
      }
    } else {
      layers_.PlaceAlone();
      elements_.emplace_back(&mark);
    }
  }

  [[nodiscard]] const std::vector<Element>& Elements() const { return elements_; }

 private:
  /// A line too short to be seen, with round ends.
  void AddDot(const DotMark& dot)
  {
    constexpr double Short = 0.001;
    if (QPainterPath* path = PathFor(dot.At, dot.At, dot.Stroke)) {
      const QPointF at = paint_.Map(dot.At);
      path->moveTo(at);
      path->lineTo(at.x() + Short, at.y());
    }
  }

  QPainterPath* PathFor(DrawPoint from, DrawPoint to, const Pen& pen)
  {
    const UnitPoint first = surface_.At(from);
    const UnitPoint last = surface_.At(to);
    const double width = pen.Width * TwipsPerPixel;
    if (!layers_.Touches(first, last, width)) {
      return nullptr;
    }
    const std::size_t layer = layers_.Place(first, last, pen.Ink, width);
    if (layer == elements_.size()) {
      elements_.emplace_back(Layer());
    }
    auto& paths = std::get<Layer>(elements_.at(layer));
    auto found = std::ranges::find(paths, pen, &PenPath::Stroke);
    if (found == paths.end()) {
      found = paths.insert(found, {pen, {}});
    }
    return &found->Path;
  }

  const MarkPainter& paint_;
  TwipSurface surface_;
  MarkLayers layers_;
  std::vector<Element> elements_;
};

}  // namespace

void PaintLayered(QPainter& painter, const Drawing& drawing, std::span<const DrawMark> marks,
                  MarkPainter& paint)
{
  if (marks.empty()) {
    return;
  }
  LayerSorter sorter(drawing, paint);
  for (const DrawMark& mark : marks) {
    sorter.Add(mark);
  }
  for (const Element& element : sorter.Elements()) {
    if (const auto* layer = std::get_if<Layer>(&element)) {
      for (const PenPath& shapes : *layer) {
        painter.strokePath(shapes.Path, paint.StrokeOf(shapes.Stroke));
      }
    } else {
      std::visit(paint, *std::get<const DrawMark*>(element));
    }
  }
}

}  // namespace veln
