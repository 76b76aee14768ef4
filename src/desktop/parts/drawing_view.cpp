#include "desktop/parts/drawing_view.h"

#include "render/drawing_painter.h"

#include <QMouseEvent>
#include <QPainter>

namespace veln {

namespace {

constexpr int SmallestSide = 420;
constexpr int RepaintMilliseconds = 17;  // 60 paints a second

}  // namespace

DrawingView::DrawingView(QWidget* parent) : QWidget(parent)
{
  setMinimumSize(SmallestSide, SmallestSide);
  setMouseTracking(true);
  sinceRepaint_.start();
  lastRepaint_.setSingleShot(true);
  lastRepaint_.callOnTimeout(this, [this] { update(); });
}

void DrawingView::Show(const Drawing& drawing)
{
  drawing_ = &drawing;
  picture_ = {};
  update();
}

void DrawingView::Grown()
{
  if (drawing_ != nullptr && drawing_->Marks.size() < painted_) {
    picture_ = {};
  }
  const qint64 elapsed = sinceRepaint_.elapsed();
  if (!isVisible() || elapsed >= RepaintMilliseconds) {
    repaint();
  } else if (!lastRepaint_.isActive()) {
    lastRepaint_.start(static_cast<int>(RepaintMilliseconds - elapsed));  // the last state shows in any case
  }
}

void DrawingView::Ring(const std::optional<DrawPoint>& place)
{
  ring_ = place;
  update();
}

QSize DrawingView::sizeHint() const
{
  return minimumSize();
}

void DrawingView::BringPictureUpToDate()
{
  const QSize wanted = size() * devicePixelRatioF();
  if (picture_.size() != wanted) {
    picture_ = QImage(wanted, QImage::Format_RGB32);
    picture_.fill(palette().color(QPalette::Window));
    painted_ = 0;
  }
  picture_.setDevicePixelRatio(1);  // painted in the screen's own pixels
  {
    QPainter painter(&picture_);
    PaintDrawing(painter, *drawing_, FitDrawing(*drawing_, QRectF(QPointF(), QSizeF(wanted))), painted_);
  }
  picture_.setDevicePixelRatio(devicePixelRatioF());
  painted_ = drawing_->Marks.size();
}

void DrawingView::paintEvent(QPaintEvent* /*event*/)
{
  if (drawing_ == nullptr) {
    return;
  }
  lastRepaint_.stop();
  BringPictureUpToDate();
  QPainter painter(this);
  painter.drawImage(0, 0, picture_);
  if (ring_) {
    constexpr double Radius = 7;
    const DrawingFrame frame = FitDrawing(*drawing_, rect());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 2));
    painter.drawEllipse(frame.Map(*drawing_, *ring_), Radius, Radius);
  }
  sinceRepaint_.restart();
}

void DrawingView::mouseMoveEvent(QMouseEvent* event)
{
  if (drawing_ == nullptr || !Pointed) {
    return;
  }
  const QRectF target = FitDrawing(*drawing_, rect()).Target;
  const double pixel = drawing_->ScaleWidth / target.width();
  Pointed(DrawPoint{drawing_->ScaleLeft + (event->position().x() - target.left()) * pixel,
                    drawing_->ScaleTop + (event->position().y() - target.top()) * pixel},
          pixel);
}

void DrawingView::leaveEvent(QEvent* /*event*/)
{
  if (Pointed) {
    Pointed(std::nullopt, 0);
  }
}

}  // namespace veln
