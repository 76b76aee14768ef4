#include "render/layered_marks.h"

#include "graphics/mark_layers.h"
#include "render/mark_painter.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <variant>
#include <vector>

namespace veln {

namespace {

constexpr double UnitsPerPixel = 15;  // twips of the drawing's own size
constexpr double Far = 1E+6;          // units, out of sight on every surface

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
      : drawing_(drawing),
        paint_(paint),
        perUnit_(drawing.PixelWidth * UnitsPerPixel / drawing.ScaleWidth),
        layers_(Whole(drawing.ScaleWidth * perUnit_), Whole(drawing.ScaleHeight * perUnit_),
                static_cast<std::int32_t>(UnitsPerPixel))
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
    const UnitPoint first = At(from);
    const UnitPoint last = At(to);
    const double width = pen.Width * UnitsPerPixel;
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

  static std::int32_t Whole(double value)
  {
    return static_cast<std::int32_t>(std::lround(std::isnan(value) ? Far : std::clamp(value, -Far, Far)));
  }
  [[nodiscard]] UnitPoint At(DrawPoint point) const
  {
    return {Whole((point.X - drawing_.ScaleLeft) * perUnit_),
            Whole((point.Y - drawing_.ScaleTop) * perUnit_)};
  }

  const Drawing& drawing_;
  const MarkPainter& paint_;
  double perUnit_;
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
