#include "desktop/parts/drawing_view.h"

#include "desktop/desktop_fixture.h"

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
