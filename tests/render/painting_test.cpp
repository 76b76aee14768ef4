#include "render/drawing_painter.h"
#include "support/testing.h"

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <cstdlib>

namespace veln {
namespace {

constexpr int Side = 100;

/// A surface of 100 by 100 pixels whose coordinates are pixels.
Drawing Sheet()
{
  return {0, 0, Side, Side, Side, {}, {}};
}

QImage Blank(int side = Side)
{
  QImage image(side, side, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

QImage Painted(const Drawing& drawing, int side = Side)
{
  QImage image = Blank(side);
  QPainter painter(&image);
  PaintDrawing(painter, drawing, FitDrawing(drawing, image.rect()));
  return image;
}

/// How many pixels each colour has.
std::map<QRgb, int> ColoursOf(const QImage& image)
{
  std::map<QRgb, int> colours;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      ++colours[image.pixel(x, y)];
    }
  }
  return colours;
}

/// A surface painted on a screen of 100 %, 125 %, ...
QImage Shown(const Drawing& drawing, double ratio)
{
  QImage screen = Blank(static_cast<int>(Side * ratio));
  screen.setDevicePixelRatio(ratio);
  QPainter painter(&screen);
  PaintDrawing(painter, drawing, FitDrawing(drawing, QRectF(0, 0, Side, Side)));
  return screen;
}

/// Equal sites look equal wherever they lie, small ones are as dark as large ones, and nothing of a dot
/// shines through the one over it.
TEST(Painting, DotsAreOfFullColourAndOneShapeAtEveryScale)
{
  constexpr Colour Ink{0, 0, 128};
  for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
    for (const double width : {1.0, 1.1, 2.0, 3.0, 4.0, 6.0, 10.0}) {
      std::set<int> sizes;
      for (const double at : {50.0, 50.2, 50.49, 50.7, 50.99}) {
        Drawing drawing = Sheet();
        for (const double part : {0.5, 0.7, 0.9, 1.0}) {
          drawing.PSet({at, at}, {{255, 0, 0}, width * part});
        }
        drawing.PSet({at, at}, {Ink, width});
        const QImage screen = Shown(drawing, ratio);
        auto colours = ColoursOf(screen);
        EXPECT_EQ(colours.size(), 2) << "paper and ink alone, " << width << " at " << ratio;
        const int size = colours[qRgb(Ink.Red, Ink.Green, Ink.Blue)];
        sizes.insert(size);
        const double most = std::max(1.5, width * ratio + 1);
        const double least = std::max(1.0, width * ratio - 1);
        EXPECT_LE(size, 4.2 / 4 * most * most) << width << " at " << ratio;
        EXPECT_GE(size, 3.1 / 4 * least * least) << width << " at " << ratio;
        double sum = 0;
        for (int x = 0; x < screen.width(); ++x) {
          for (int y = 0; y < screen.height(); ++y) {
            sum += screen.pixelColor(x, y) == Qt::white ? 0 : x + 0.5;
          }
        }
        EXPECT_NEAR(sum / size, at * ratio, 0.51) << "at most half a pixel from its place";
      }
      EXPECT_EQ(sizes.size(), 1) << width << " at " << ratio;
    }
  }
}

TEST(Painting, ClippedMarksShowInsideTheirBoxAlone)
{
  Drawing drawing = Sheet();
  drawing.PSet({10, 10}, {{0, 0, 0}, 8});  // before the clipped marks
  for (const double x : {30.0, 45.0, 70.0}) {
    drawing.PSet({x, 50}, {{0, 0, 0}, 8});
  }
  drawing.PSet({90, 90}, {{0, 0, 0}, 8});  // behind them
  drawing.Clip = ClippedMarks{{30, 30}, {60, 60}, 1, 4};
  const QImage image = Painted(drawing);
  for (const QPoint inside : {QPoint(10, 10), QPoint(31, 50), QPoint(45, 50), QPoint(90, 90)}) {
    EXPECT_EQ(image.pixelColor(inside), QColor(Qt::black)) << inside.x();
  }
  for (const QPoint outside : {QPoint(27, 50), QPoint(70, 50)}) {
    EXPECT_EQ(image.pixelColor(outside), QColor(Qt::white)) << outside.x();
  }
}

/// The first and the last column with ink.
std::pair<int, int> InkColumns(const QImage& image)
{
  std::pair<int, int> columns{image.width(), -1};
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) {
      if (image.pixelColor(x, y).lightness() < 128) {
        columns = {std::min(columns.first, x), std::max(columns.second, x)};
      }
    }
  }
  return columns;
}

TEST(Painting, TextStandsAtItsAnchorAndStaysWholeAtTheEdge)
{
  struct Case {
    double X;
    TextAnchor Anchor;
    double Middle;
  };
  const auto columnsOf = [](double x, TextAnchor anchor) {
    Drawing drawing = Sheet();
    drawing.Marks.emplace_back(TextMark{{x, 40}, "HHH", {0, 0, 0}, 8, false, anchor});
    return InkColumns(Painted(drawing));
  };
  const auto [left, right] = columnsOf(50, TextAnchor::Middle);
  const double width = right - left;
  EXPECT_GT(width, 10);
  for (const auto& [x, anchor, middle] :
       {Case{50, TextAnchor::Middle, 50}, Case{50, TextAnchor::Start, 50 + width / 2},
        Case{50, TextAnchor::End, 50 - width / 2}, Case{95, TextAnchor::Start, 99 - width / 2}}) {
    const auto [first, last] = columnsOf(x, anchor);
    EXPECT_NEAR(last - first, width, 2);
    EXPECT_NEAR((first + last) / 2.0, middle, 3);
  }
}

TEST(Painting, BarWithoutHeightIsAThinLine)
{
  Drawing drawing = Sheet();
  drawing.FillBox({20, 60}, {40, 60}, {0, 128, 0});
  const QImage image = Painted(drawing);
  EXPECT_LT(image.pixelColor(30, 59).red() + image.pixelColor(30, 60).red(), 2 * 255);
  EXPECT_EQ(image.pixelColor(30, 57), QColor(Qt::white));
}

/// What devices that keep shapes are told, played on pixels: what was drawn later lies above.
TEST(Painting, ShapesLieInTheOrderOfTheirMarks)
{
  constexpr Colour Inks[] = {{255, 0, 0}, {0, 0, 255}, {0, 128, 0}};
  Drawing drawing = Sheet();
  for (int i = 0; i < 30; ++i) {
    drawing.PSet({10.0 + 2 * i, 30}, {Inks[i % 3], i % 2 == 0 ? 8.0 : 6.0});
    drawing.Line({10.0 + 2 * i, 60}, {90.0 - 2 * i, 90}, {Inks[(i + 1) % 3], 3});
  }
  QPicture shapes;
  {
    QPainter painter(&shapes);
    PaintDrawing(painter, drawing, FitDrawing(drawing, QRectF(0, 0, Side, Side)));
  }
  QImage played = Blank();
  QPainter(&played).drawPicture(0, 0, shapes);
  const QImage painted = Painted(drawing);
  for (int i = 0; i < 30; ++i) {
    if (i % 2 == 0) {  // the part of a wide dot that the next ones leave
      EXPECT_EQ(played.pixelColor(7 + 2 * i, 30), painted.pixelColor(7 + 2 * i, 30)) << i;
    }
    EXPECT_EQ(played.pixelColor(11 + 2 * i, 75), painted.pixelColor(11 + 2 * i, 75)) << i;
  }
}

}  // namespace
}  // namespace veln
