#pragma once

#include "graphics/plot.h"
#include "survey/field_extent.h"
#include "toolkit/drawing.h"

#include <string>

namespace veln {

// Fixed places on the surface of a plot, in its logical coordinates.
inline constexpr double SurfaceLeft = -1.6;
inline constexpr double SurfaceTop = -1.2;
inline constexpr double SurfaceWidth = 2.91;
inline constexpr double SurfaceHeight = 2.4;
inline constexpr double SurfacePixels = 594;
inline constexpr double BoxEdge =
    1.05;  ///< the plot box reaches from -1.05 to 1.05; data extremes stand at 1

/// The part of the surface that the plot box shows, in logical coordinates: all of the box unless zoomed.
struct PlotView {
  double Left = -BoxEdge;
  double Top = -BoxEdge;
  double Size = 2 * BoxEdge;  ///< width and height

  /// Where a place of the fitted plot stands on the surface.
  [[nodiscard]] DrawPoint Place(DrawPoint at) const;
  /// The place of the fitted plot that stands at `at` now.
  [[nodiscard]] DrawPoint Fitted(DrawPoint at) const;
  /// How much larger distances are than in the fitted plot.
  [[nodiscard]] double Zoom() const { return 2 * BoxEdge / Size; }
  bool operator==(const PlotView&) const = default;
};

/// The double that `x` becomes when it is written with 2 to 5 decimal places.
double RoundToPlaces(double x, int places);

/// A value in the format of an axis. Empty for a value that is not finite, and for a text axis.
std::string AxisLabel(double value, const PlotAxis& axis);

/// Takes the values of an axis to the box and back. Limits of zero width count as 1 to either side, so that
/// all such sites stand in the middle.
class AxisScale {
 public:
  explicit AxisScale(const Limits& limits);

  /// On the horizontal axis: -1 at the minimum, 1 at the maximum.
  [[nodiscard]] double X(double value) const { return (value - middle_) / half_; }
  /// On the vertical axis: -1, the top, at the maximum.
  [[nodiscard]] double Y(double value) const { return (middle_ - value) / half_; }
  [[nodiscard]] double Middle() const { return middle_; }
  [[nodiscard]] double Half() const { return half_; }

 private:
  double half_, middle_;
};

/// Lowest value, midpoint and highest value of both axes, each in its own format. Labels of a text axis are
/// empty.
AxisLabels FittedLabels(const PlotAxis& x, const PlotAxis& y);

/// The six labels of a plot whose box shows `view`: the values at the ticks of the box, in the axes' own
/// formats. Text axes keep their labels, and so does a plot that is not zoomed.
AxisLabels VisibleLabels(const Plot& plot, const PlotView& view);

/// Axes of equal scale: a metre is as long across the map as along it.
struct MapAxes {
  PlotAxis X, Y;
  AxisLabels Labels;
};

/// `EqualAspect`: the longer side of the field fills its axis; the other axis is widened to the same length
/// about the rounded centre that its label shows. `format` and `places` are those of the labels. A field
/// without any extent gets the limits centre - 1 and centre + 1.
MapAxes EqualAspect(const FieldExtent& field, AxisFormat format, int places);

/// The limits of a map that stands on screen: its centre is read back from the labels shown, since nothing
/// else is left to tell how it was rounded when the map was drawn.
FieldExtent EqualAspectShown(const FieldExtent& field, const AxisLabels& shown);

}  // namespace veln
