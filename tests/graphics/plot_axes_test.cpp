#include "graphics/plot_axes.h"

#include "support/testing.h"

namespace veln {
namespace {

TEST(AxisLabels, HaveTheFormatOfTheirAxis)
{
  struct Case {
    double Value;
    PlotAxis Axis;
    std::string Text;
  };
  const PlotAxis coordinate{{0, 1}, AxisFormat::Coordinate, 2};
  const PlotAxis fine{{0, 1}, AxisFormat::Coordinate, 5};
  const PlotAxis fixed{{0, 1}, AxisFormat::FixedCoordinate};
  const PlotAxis signal{{0, 1}, AxisFormat::Signal};
  const PlotAxis count{{0, 1}, AxisFormat::Count};
  for (const auto& [value, axis, text] : std::vector<Case>{{1234.5678, coordinate, "1234.57"},
                                                           {1234.5, coordinate, "1234.5"},
                                                           {3, coordinate, "3"},
                                                           {-0.001, coordinate, "0"},
                                                           {-117.123454, fine, "-117.12345"},
                                                           {4999876.54, coordinate, "4999876.54"},
                                                           {12.5, fixed, "12.50"},
                                                           {3, signal, "3.00"},
                                                           {125, count, "125.0"},
                                                           {7, {}, ""},
                                                           {1 / 0.0, signal, ""}}) {
    EXPECT_EQ(AxisLabel(value, axis), text);
  }
}

TEST(AxisScale, PutsTheLimitsAtOneAndAZeroWidthInTheMiddle)
{
  const AxisScale scale({10, 30});
  EXPECT_EQ(scale.X(10), -1);
  EXPECT_EQ(scale.X(30), 1);
  EXPECT_EQ(scale.Y(30), -1);
  EXPECT_EQ(scale.Y(15), 0.5);
  const AxisScale point({7, 7});
  EXPECT_EQ(point.X(7), 0);
  EXPECT_EQ(point.Y(7), 0);
}

TEST(EqualAspect, WidensTheShorterSideAboutTheCentreOfItsLabel)
{
  // 0.25 to 100.5 has the centre 50.375, which the label rounds to 50.38.
  const MapAxes tall = EqualAspect({{0.25, 100.5}, {-200, 400}}, AxisFormat::Coordinate, 2);
  EXPECT_EQ(tall.X.Range, (Limits{50.38 - 300, 50.38 + 300}));
  EXPECT_EQ(tall.Y.Range, (Limits{-200, 400}));
  EXPECT_EQ(tall.Labels, (AxisLabels{"-249.62", "50.38", "350.38", "-200", "100", "400"}));
  const MapAxes wide = EqualAspect({{-200, 400}, {0.25, 100.5}}, AxisFormat::FixedCoordinate, 2);
  EXPECT_EQ(wide.Labels, (AxisLabels{"-200.00", "100.00", "400.00", "-249.62", "50.38", "350.38"}));
}

TEST(EqualAspect, OfASquareRecomputesXAndOfAPointShowsOneToEitherSide)
{
  const MapAxes square = EqualAspect({{0.004, 10.004}, {0, 10}}, AxisFormat::Coordinate, 2);
  EXPECT_EQ(square.X.Range.Minimum, 0);
  EXPECT_EQ(square.Y.Range.Maximum, 10);
  const MapAxes point = EqualAspect({{5, 5}, {7, 7}}, AxisFormat::Coordinate, 2);
  EXPECT_EQ(point.Labels, (AxisLabels{"4", "5", "6", "6", "7", "8"}));
  const MapAxes line = EqualAspect({{5, 5}, {0, 20}}, AxisFormat::Coordinate, 2);
  EXPECT_EQ(line.X.Range, (Limits{-5, 15}));
}

TEST(EqualAspect, ReadsTheCentreBackFromTheLabelsShown)
{
  AxisLabels labels;
  labels.txtMedX = "50.4";
  const FieldExtent limits = EqualAspectShown({{0.25, 100.5}, {-200, 400}}, labels);
  EXPECT_EQ(limits.X.Minimum, 50.4 - 300);
  EXPECT_EQ(limits.Y.Maximum, 400);
}

TEST(ZoomedLabels, TellTheValuesAtTheTicksOfTheBox)
{
  Plot plot;
  plot.AxisX = {{0, 200}, AxisFormat::Coordinate, 2};
  plot.AxisY = {{10, 30}, AxisFormat::Signal};
  plot.Labels = FittedLabels(plot.AxisX, plot.AxisY);
  EXPECT_EQ(plot.Labels, (AxisLabels{"0", "100", "200", "10.00", "20.00", "30.00"}));
  EXPECT_EQ(VisibleLabels(plot, {}), plot.Labels);
  // Twice as large about the middle of the upper right quarter: the box's ticks stand at 0 and 1 of the plot.
  const PlotView quarter{0.5 - BoxEdge / 2, -0.5 - BoxEdge / 2, BoxEdge};
  EXPECT_EQ(VisibleLabels(plot, quarter), (AxisLabels{"100", "150", "200", "20.00", "25.00", "30.00"}));
  plot.AxisY = {{-1, 1}, AxisFormat::Text};
  plot.Labels.txtMedY = "dither";
  EXPECT_EQ(VisibleLabels(plot, quarter).txtMedY, "dither");
}

}  // namespace
}  // namespace veln
