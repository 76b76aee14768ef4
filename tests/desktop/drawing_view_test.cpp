#include "desktop/drawing_view.h"

#include "desktop/desktop_fixture.h"
#include "render/drawing_painter.h"

#include <numbers>

namespace veln {
namespace {

/// White paper of 100 by 100.
Drawing Paper()
{
  Drawing drawing;
  drawing.ScaleWidth = drawing.ScaleHeight = drawing.PixelWidth = 100;
  drawing.FillBox({0, 0}, {100, 100}, QBColor(15));
  return drawing;
}

QImage Painted(const Drawing& drawing, double ratio, QImage::Format format)
{
  QImage image(QSize(100, 100) * ratio, format);
  image.setDevicePixelRatio(ratio);
  QPainter painter(&image);
  PaintDrawing(painter, drawing, FitDrawing(drawing, QRectF(0, 0, 100, 100)));
  return image;
}

/// How much black is on an image, in pixels.
double Ink(const QImage& image)
{
  double ink = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      ink += (255 - qRed(image.pixel(x, y))) / 255.0;
    }
  }
  return ink;
}

TEST(DrawingPainter, DotsHaveTheirPlaceAndAreaHoweverTheyArePainted)
{
  for (const double ratio : {1.0, 2.0}) {
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
      Drawing drawing = Paper();
      drawing.PSet({30.5, 40.5}, {QBColor(0), 5});
      drawing.PSet({70.3, 20.9}, {QBColor(0), 5});
      drawing.PSet({100, 100}, {QBColor(15), 9});  // the edge cuts it
      const QImage image = Painted(drawing, ratio, format);
      EXPECT_EQ(image.pixelColor((QPointF(30.5, 40.5) * ratio).toPoint()), QColor(Qt::black));
      EXPECT_EQ(image.pixelColor((QPointF(70.3, 20.9) * ratio).toPoint()), QColor(Qt::black));
      EXPECT_EQ(image.pixelColor((QPointF(34.5, 40.5) * ratio).toPoint()), QColor(Qt::white));
      const double area = 2 * std::numbers::pi * 2.5 * 2.5 * ratio * ratio;
      EXPECT_NEAR(Ink(image), area, area / 20) << ratio << ' ' << format;
    }
  }
}

class CountingView : public DrawingView {
 public:
  using DrawingView::DrawingView;
  int Paints = 0;

 protected:
  void paintEvent(QPaintEvent* event) override
  {
    ++Paints;
    DrawingView::paintEvent(event);
  }
};

TEST(DrawingView, GrowthIsPaintedAtMostSixtyTimesASecondAndItsEndShows)
{
  Drawing drawing = Paper();
  CountingView view(nullptr);
  view.Show(drawing);
  view.show();
  QTest::qWait(50);
  view.Paints = 0;
  QElapsedTimer watch;
  watch.start();
  for (int i = 0; watch.elapsed() < 200; ++i) {
    drawing.PSet({10.0 + i % 50, 10}, {QBColor(0), 1});
    view.Grown();
  }
  drawing.PSet({50, 50}, {QBColor(12), 40});
  view.Grown();
  EXPECT_GE(view.Paints, 1);
  EXPECT_LE(view.Paints, 13);  // 200 ms at 60 a second, and one
  const auto middle = [&view] { return view.grab().toImage().pixelColor(view.rect().center()); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return middle() == QColor(255, 0, 0); }));
  drawing = Paper();
  view.Grown();
  EXPECT_EQ(middle(), QColor(Qt::white));
}

}  // namespace
}  // namespace veln
