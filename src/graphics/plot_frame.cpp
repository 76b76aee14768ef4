#include "graphics/plot_frame.h"

#include "graphics/plot_axes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace veln {

namespace {

constexpr int Paper = 15;
constexpr int FrameColour = 0;
constexpr double FrameWidth = 2;
constexpr double TickLength = 0.03;
constexpr double HighlightWidth = 4;

bool IsDesignMember(std::int16_t status)
{
  return status >= 1 && status <= site_status::Selected;
}

}  // namespace

void PlotRefresh(Plot& plot)
{
  Drawing picture{SurfaceLeft, SurfaceTop, SurfaceWidth, SurfaceHeight, SurfacePixels, {}, {}};
  const Pen pen{QBColor(FrameColour), FrameWidth};
  const DrawPoint topLeft{-BoxEdge, -BoxEdge};
  const DrawPoint bottomRight{BoxEdge, BoxEdge};
  picture.FillBox(topLeft, bottomRight, QBColor(Paper));
  picture.Box(topLeft, bottomRight, pen);
  for (const double y : {-1.0, 0.0, 1.0}) {
    picture.Line({-BoxEdge - TickLength, y}, {-BoxEdge, y}, pen);
  }
  for (const double x : {-1.0, 0.0, 1.0}) {
    picture.Line({x, BoxEdge}, {x, BoxEdge + TickLength}, pen);
  }
  picture.Clip = ClippedMarks{topLeft, bottomRight, Plot::FrameMarks};
  plot.Picture = std::move(picture);
  plot.Sites.clear();
  plot.FieldMap = false;
  plot.Legend.reset();
}

void LabelRefresh(Plot& plot)
{
  plot.Labels = {};
  plot.AxisX = {};
  plot.AxisY = {};
}

void LabelAxes(Plot& plot, const PlotAxis& x, const PlotAxis& y)
{
  plot.AxisX = x;
  plot.AxisY = y;
  plot.Labels = FittedLabels(x, y);
}

void HidePanels(Plot& plot)
{
  plot.LinePanel = false;
  plot.StatisticsPanel = false;
  plot.LegendPanel = false;
}

std::span<const double> SeriesOf(const SurveyState& state, const std::vector<double>& column)
{
  return std::span(column).first(std::min(column.size(), static_cast<std::size_t>(state.SurveySize)));
}

void PutSite(Plot& plot, std::size_t site, DrawPoint at, const Pen& pen)
{
  if (std::isfinite(at.X) && std::isfinite(at.Y)) {
    plot.Picture.PSet(at, pen);
    plot.Sites.push_back({static_cast<int>(site), at});
  }
}

void PutHighlight(Plot& plot, std::int16_t status, DrawPoint at, const PlotOptions& options)
{
  constexpr int SampleColour = 11;
  constexpr int MaskedColour = 14;
  constexpr int OutlierColour = 4;
  if (!std::isfinite(at.X) || !std::isfinite(at.Y)) {
    return;
  }
  if (IsDesignMember(status) && options.HighlightSamples) {
    plot.Picture.PSet(at, {QBColor(SampleColour), HighlightWidth});
  } else if (status == site_status::Masked && options.HighlightMasked) {
    plot.Picture.PSet(at, {QBColor(MaskedColour), HighlightWidth});
  } else if (status == site_status::Outlier && options.HighlightMasked) {
    plot.Picture.PSet(at, {QBColor(OutlierColour), HighlightWidth});
  }
}

}  // namespace veln
