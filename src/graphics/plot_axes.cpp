#include "graphics/plot_axes.h"

#include "toolkit/number_text.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace veln {

namespace {

/// The value of an axis at a place of the fitted plot, upward.
double ValueAt(const PlotAxis& axis, double place)
{
  const AxisScale scale(axis.Range);
  return scale.Middle() + place * scale.Half();
}

}  // namespace

DrawPoint PlotView::Place(DrawPoint at) const
{
  return {(at.X - Left) * Zoom() - BoxEdge, (at.Y - Top) * Zoom() - BoxEdge};
}

DrawPoint PlotView::Fitted(DrawPoint at) const
{
  return {(at.X + BoxEdge) / Zoom() + Left, (at.Y + BoxEdge) / Zoom() + Top};
}

double RoundToPlaces(double x, int places)
{
  static constexpr std::array<const char*, 4> Patterns = {"0.00", "0.000", "0.0000", "0.00000"};
  constexpr int Fewest = 2;
  return RoundByFormat(x, Patterns.at(static_cast<std::size_t>(places - Fewest)));
}

std::string AxisLabel(double value, const PlotAxis& axis)
{
  if (!std::isfinite(value)) {
    return "";
  }
  switch (axis.Format) {
    case AxisFormat::Coordinate:
      return GeneralForm(RoundToPlaces(value, axis.Places));
    case AxisFormat::FixedCoordinate:
    case AxisFormat::Signal:
      return FormatNumber(value, "0.00");
    case AxisFormat::Count:
      return FormatNumber(value, "0.0");
    case AxisFormat::Text:
      break;
  }
  return "";
}

AxisScale::AxisScale(const Limits& limits) : half_(limits.Half()), middle_(limits.Middle())
{
  if (half_ == 0) {
    half_ = 1;
  }
}

AxisLabels FittedLabels(const PlotAxis& x, const PlotAxis& y)
{
  return {AxisLabel(x.Range.Minimum, x), AxisLabel(x.Range.Middle(), x), AxisLabel(x.Range.Maximum, x),
          AxisLabel(y.Range.Minimum, y), AxisLabel(y.Range.Middle(), y), AxisLabel(y.Range.Maximum, y)};
}

AxisLabels VisibleLabels(const Plot& plot, const PlotView& view)
{
  AxisLabels labels = plot.Labels;
  if (view == PlotView{}) {
    return labels;
  }
  const DrawPoint topLeft = view.Fitted({-1, -1});
  const DrawPoint middle = view.Fitted({0, 0});
  const DrawPoint bottomRight = view.Fitted({1, 1});
  const PlotAxis& x = plot.AxisX;
  if (x.Format != AxisFormat::Text) {
    labels.txtMinX = AxisLabel(ValueAt(x, topLeft.X), x);
    labels.txtMedX = AxisLabel(ValueAt(x, middle.X), x);
    labels.txtMaxX = AxisLabel(ValueAt(x, bottomRight.X), x);
  }
  const PlotAxis& y = plot.AxisY;  // larger values stand higher, at smaller places
  if (y.Format != AxisFormat::Text) {
    labels.txtMinY = AxisLabel(ValueAt(y, -bottomRight.Y), y);
    labels.txtMedY = AxisLabel(ValueAt(y, -middle.Y), y);
    labels.txtMaxY = AxisLabel(ValueAt(y, -topLeft.Y), y);
  }
  return labels;
}

FieldExtent EqualAspectShown(const FieldExtent& field, const AxisLabels& shown)
{
  const auto centre = [](const std::string& label, const Limits& range) {
    return ParseNumber(label).value_or(range.Middle());  // a centre that is not finite has no label
  };
  return field.SquareAbout(centre(shown.txtMedX, field.X), centre(shown.txtMedY, field.Y));
}

MapAxes EqualAspect(const FieldExtent& field, AxisFormat format, int places)
{
  const auto labelOf = [&](const Limits& range) {
    return AxisLabel(range.Middle(), {range, format, places});
  };
  AxisLabels centres;
  centres.txtMedX = labelOf(field.X);
  centres.txtMedY = labelOf(field.Y);
  const FieldExtent limits = EqualAspectShown(field, centres);
  MapAxes axes{{limits.X, format, places}, {limits.Y, format, places}, {}};
  axes.Labels = FittedLabels(axes.X, axes.Y);
  // The middle of limits made about a centre may round to another text than the centre itself.
  axes.Labels.txtMedX = centres.txtMedX;
  axes.Labels.txtMedY = centres.txtMedY;
  return axes;
}

}  // namespace veln
