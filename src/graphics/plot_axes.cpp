#include "graphics/plot_axes.h"

#include "toolkit/number_text.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace veln {

namespace {

double HalfOf(const Limits& limits)
{
  return (limits.Maximum - limits.Minimum) / 2;
}

double MiddleOf(const Limits& limits)
{
  return HalfOf(limits) + limits.Minimum;
}

Limits Around(double centre, double half)
{
  return {centre - half, centre + half};
}

/// The limits of both axes about the centres that the labels show.
struct EqualLimits {
  Limits X, Y;
};

EqualLimits EqualLimitsOf(const Limits& xRange, const Limits& yRange, const std::string& txtMedX,
                          const std::string& txtMedY)
{
  const double hx = HalfOf(xRange);
  const double hy = HalfOf(yRange);
  const auto readBack = [](const std::string& text, const Limits& range) {
    return ParseNumber(text).value_or(MiddleOf(range));
  };
  if (hx == 0 && hy == 0) {
    return {Around(readBack(txtMedX, xRange), 1), Around(MiddleOf(yRange), 1)};
  }
  if (hx <= hy) {
    return {Around(readBack(txtMedX, xRange), hy), yRange};
  }
  return {xRange, Around(readBack(txtMedY, yRange), hx)};
}

/// The value of an axis at a place of the fitted plot, upward.
double ValueAt(const PlotAxis& axis, double place)
{
  const AxisScale scale({axis.Low, axis.High});
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

AxisScale::AxisScale(const Limits& limits) : half_(HalfOf(limits)), middle_(MiddleOf(limits))
{
  if (half_ == 0) {
    half_ = 1;
  }
}

AxisLabels FittedLabels(const PlotAxis& x, const PlotAxis& y)
{
  return {AxisLabel(x.Low, x), AxisLabel(MiddleOf({x.Low, x.High}), x), AxisLabel(x.High, x),
          AxisLabel(y.Low, y), AxisLabel(MiddleOf({y.Low, y.High}), y), AxisLabel(y.High, y)};
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

MapAxes EqualAspect(const Limits& xRange, const Limits& yRange, AxisFormat format, int places)
{
  MapAxes axes{{0, 0, format, places}, {0, 0, format, places}, {}};
  const std::string txtMedX = AxisLabel(MiddleOf(xRange), axes.X);
  const std::string txtMedY = AxisLabel(MiddleOf(yRange), axes.Y);
  const EqualLimits limits = EqualLimitsOf(xRange, yRange, txtMedX, txtMedY);
  axes.X.Low = limits.X.Minimum;
  axes.X.High = limits.X.Maximum;
  axes.Y.Low = limits.Y.Minimum;
  axes.Y.High = limits.Y.Maximum;
  axes.Labels = FittedLabels(axes.X, axes.Y);
  axes.Labels.txtMedX = txtMedX;
  axes.Labels.txtMedY = txtMedY;
  return axes;
}

MapAxes EqualAspectShown(const Limits& xRange, const Limits& yRange, const AxisLabels& shown)
{
  const EqualLimits limits = EqualLimitsOf(xRange, yRange, shown.txtMedX, shown.txtMedY);
  MapAxes axes;
  axes.X = {limits.X.Minimum, limits.X.Maximum, AxisFormat::Text};
  axes.Y = {limits.Y.Minimum, limits.Y.Maximum, AxisFormat::Text};
  axes.Labels = shown;
  return axes;
}

}  // namespace veln
