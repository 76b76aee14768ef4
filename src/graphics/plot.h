#pragma once

#include "graphics/map_legend.h"
#include "survey/statistics.h"
#include "toolkit/drawing.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// The six axis labels around the plot box, as shown.
struct AxisLabels {
  std::string txtMinX, txtMedX, txtMaxX;
  std::string txtMinY, txtMedY, txtMaxY;
  bool operator==(const AxisLabels&) const = default;
};

/// How the values of an axis are written.
enum class AxisFormat {
  Coordinate,       ///< rounded to the chosen decimal places, without trailing zeros
  FixedCoordinate,  ///< a coordinate of the labelled site map: "0.00"
  Signal,           ///< "0.00"
  Count,            ///< "0.0"
  Text              ///< the axis has no values; its labels stay whatever is shown
};

/// An axis: the values at -1 and +1 of the box (on the y axis at the bottom and the top tick).
struct PlotAxis {
  Limits Range;
  AxisFormat Format = AxisFormat::Text;
  int Places = 2;  ///< decimal places of a `Coordinate`
};

/// Where a site of the survey stands on the drawing. `Site` counts from 0.
struct PlotSite {
  int Site = 0;
  DrawPoint At;
};

/// The "Statistics" panel, `Frame2`, line by line.
struct PlotStatistics {
  std::string LblT1, Lblm1, Lblv1;
  std::string LblT2, Lblm2, Lblv2;
  std::string LblCorr, Lblr1, Lblr2;

  /// The lines as they stand together.
  [[nodiscard]] std::array<std::array<std::string, 3>, 3> Blocks() const
  {
    return {{{LblT1, Lblm1, Lblv1}, {LblT2, Lblm2, Lblv2}, {LblCorr, Lblr1, Lblr2}}};
  }
  bool operator==(const PlotStatistics&) const = default;
};

/// A picture of the survey as data: what stands in the plot box and what is written around it.
///
/// The drawing's surface has its left edge at -1.6, its top at -1.2, is 2.91 wide and 2.4 high, and 594 by
/// 489 pixels at its own size; the plot box is the square from (-1.05, -1.05) to (1.05, 1.05).
struct Plot {
  static constexpr std::size_t FrameMarks = 8;

  Drawing Picture;
  PlotAxis AxisX, AxisY;
  AxisLabels Labels;
  std::string Title;  ///< `txtTitle`
  PlotStatistics Statistics;
  bool LinePanel = false;        ///< `Frame1` shows
  bool StatisticsPanel = false;  ///< `Frame2` shows
  bool LegendPanel = false;      ///< `Frame3` shows
  std::vector<PlotSite> Sites;   ///< the sites that stand in the picture, in the order drawn
  bool FieldMap = false;  ///< x and y of the field at one scale: a scale bar and an arrow have a meaning
  std::optional<MapLegend> Legend;  ///< of a colour-scale map, in the colours that it was drawn with
};

}  // namespace veln
