#include "desktop/graphics/plot_pane.h"

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace veln {

namespace {

constexpr int SmallestSide = 360;
constexpr double TickRoom = 0.04;   // of the surface, left of the box and under it
constexpr double FrameRoom = 0.01;  // on the other two sides
constexpr int ComposeMilliseconds = 17;
constexpr double ZoomStep = 1.25;
constexpr double MostZoom = 1000;
constexpr double Reach = 6;  // pixels from a site that still point at it
constexpr DrawPoint Middle{0, 0};

/// The view held inside the fitted plot.
PlotView Held(PlotView view)
{
  constexpr PlotView All;
  if (view.Size >= All.Size) {
    return All;
  }
  view.Size = std::max(view.Size, All.Size / MostZoom);
  view.Left = std::clamp(view.Left, -BoxEdge, BoxEdge - view.Size);
  view.Top = std::clamp(view.Top, -BoxEdge, BoxEdge - view.Size);
  return view;
}

QString PlainToolTip(const QString& text)
{
  return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

}  // namespace

PlotPane::PlotPane(QWidget* parent) : QWidget(parent)
{
  setObjectName("PlotBox");
  setMinimumSize(SmallestSide, SmallestSide);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  recompose_.setSingleShot(true);
  connect(&recompose_, &QTimer::timeout, this, [this] { update(); });
}

void PlotPane::Show(const Plot& plot, const MapFurniture& furniture, bool fit)
{
  plot_ = &plot;
  furniture_ = furniture;
  sites_ = SiteIndex(plot.Sites);
  pointed_.reset();
  layerOld_ = true;
  if (fit) {
    view_ = {};
  }
  update();
}

void PlotPane::ForgetSites()
{
  sites_ = {};
  pointed_.reset();
  update();
}

void PlotPane::SetView(const PlotView& view)
{
  const PlotView held = Held(view);
  if (held != view_) {
    view_ = held;
    pointed_.reset();
    QToolTip::hideText();
    setCursor(view_ == PlotView{} ? Qt::ArrowCursor : Qt::OpenHandCursor);
    update();
    if (ViewChanged) {
      ViewChanged();
    }
  }
}

/// The box lies on whole pixels of the screen, so that its frame is sharp.
PlotPane::BoxPlace PlotPane::PlaceBox() const
{
  constexpr double Units = 2 * BoxEdge + TickRoom + FrameRoom;
  const double screen = std::min(width(), height()) * devicePixelRatioF();
  const double side = std::floor(screen * 2 * BoxEdge / Units);
  const double frameRoom = std::ceil(FrameRoom * side / (2 * BoxEdge)) + 1;
  return {std::floor(screen) - side - frameRoom, frameRoom, side};
}

DrawingFrame PlotPane::Frame() const
{
  const BoxPlace box = PlaceBox();
  const double unit = box.Side / (2 * BoxEdge);
  return {QRectF(box.Left + (SurfaceLeft + BoxEdge) * unit, box.Top + (SurfaceTop + BoxEdge) * unit,
                 SurfaceWidth * unit, SurfaceHeight * unit),
          devicePixelRatioF()};
}

double PlotPane::UnitLength() const
{
  return PlaceBox().Side / (2 * BoxEdge) / devicePixelRatioF();
}

QPointF PlotPane::OnScreen(DrawPoint surface) const
{
  const BoxPlace box = PlaceBox();
  const double unit = UnitLength();
  return {box.Left / devicePixelRatioF() + (surface.X + BoxEdge) * unit,
          box.Top / devicePixelRatioF() + (surface.Y + BoxEdge) * unit};
}

DrawPoint PlotPane::OnSurface(QPointF point) const
{
  const QPointF corner = OnScreen({-BoxEdge, -BoxEdge});
  const double unit = UnitLength();
  return {(point.x() - corner.x()) / unit - BoxEdge, (point.y() - corner.y()) / unit - BoxEdge};
}

void PlotPane::Zoom(double factor, DrawPoint about)
{
  if (plot_ == nullptr || plot_->Picture.Marks.size() <= Plot::FrameMarks) {
    return;
  }
  const DrawPoint kept = view_.Fitted({std::clamp(about.X, -BoxEdge, BoxEdge),  //
                                       std::clamp(about.Y, -BoxEdge, BoxEdge)});
  PlotView zoomed = view_;
  zoomed.Size = std::max(view_.Size / factor, PlotView().Size / MostZoom);
  const double share = zoomed.Size / view_.Size;
  zoomed.Left = kept.X - (kept.X - view_.Left) * share;
  zoomed.Top = kept.Y - (kept.Y - view_.Top) * share;
  SetView(zoomed);
}

/// By parts of the box's side.
void PlotPane::Move(double dx, double dy)
{
  SetView({view_.Left + dx * view_.Size, view_.Top + dy * view_.Size, view_.Size});
}

void PlotPane::wheelEvent(QWheelEvent* event)
{
  constexpr double Notch = 120;
  Zoom(std::pow(ZoomStep, event->angleDelta().y() / Notch), OnSurface(event->position()));
  event->accept();
}

void PlotPane::mousePressEvent(QMouseEvent* event)
{
  if (event->button() == Qt::LeftButton) {
    dragged_ = event->position();
    if (view_ != PlotView{}) {
      setCursor(Qt::ClosedHandCursor);
    }
  }
}

void PlotPane::mouseMoveEvent(QMouseEvent* event)
{
  if (dragged_ && view_ != PlotView{}) {
    const double side = 2 * BoxEdge * UnitLength();
    const QPointF step = event->position() - *dragged_;
    dragged_ = event->position();
    Move(-step.x() / side, -step.y() / side);
    setCursor(Qt::ClosedHandCursor);
  } else {
    Point(event->position(), event->globalPosition().toPoint());
  }
}

void PlotPane::mouseReleaseEvent(QMouseEvent* /*event*/)
{
  dragged_.reset();
  setCursor(view_ == PlotView{} ? Qt::ArrowCursor : Qt::OpenHandCursor);
}

void PlotPane::mouseDoubleClickEvent(QMouseEvent* event)
{
  if (event->button() == Qt::LeftButton) {
    SetView({});
  }
}

void PlotPane::leaveEvent(QEvent* /*event*/)
{
  pointed_.reset();
  update();
}

void PlotPane::keyPressEvent(QKeyEvent* event)
{
  constexpr double Step = 0.1;
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Zoom(ZoomStep, Middle);
      break;
    case Qt::Key_Minus:
      Zoom(1 / ZoomStep, Middle);
      break;
    case Qt::Key_Left:
      Move(-Step, 0);
      break;
    case Qt::Key_Right:
      Move(Step, 0);
      break;
    case Qt::Key_Up:
      Move(0, -Step);
      break;
    case Qt::Key_Down:
      Move(0, Step);
      break;
    case Qt::Key_Home:
      SetView({});
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void PlotPane::Point(QPointF where, QPoint global)
{
  const DrawPoint at = OnSurface(where);
  const bool inside = std::abs(at.X) <= BoxEdge && std::abs(at.Y) <= BoxEdge;
  const auto found =
      inside ? sites_.Nearest(view_.Fitted(at), Reach / UnitLength() / view_.Zoom()) : std::nullopt;
  const bool same = found && pointed_ && found->Site == pointed_->Site && found->At == pointed_->At;
  if (same || (!found && !pointed_)) {
    return;
  }
  pointed_ = found;
  const QString text = found && Describe ? Describe(found->Site) : QString();
  if (text.isEmpty()) {
    pointed_.reset();
    QToolTip::hideText();
  } else {
    QToolTip::showText(global, PlainToolTip(text), this);
  }
  update();
}

void PlotPane::Compose()
{
  const double ratio = devicePixelRatioF();
  QImage picture(size() * ratio, QImage::Format_RGB32);
  picture.fill(Qt::white);
  if (plot_ != nullptr) {
    QPainter painter(&picture);
    PaintDrawing(painter, ZoomedPicture(*plot_, view_, furniture_), Frame());
  }
  layer_ = QPixmap::fromImage(std::move(picture), Qt::NoFormatConversion);
  layer_.setDevicePixelRatio(ratio);
  layerView_ = view_;
  layerOld_ = false;
  sinceComposed_.start();
}

void PlotPane::paintEvent(QPaintEvent* /*event*/)
{
  const bool wrong = layerOld_ || layer_.size() != size() * devicePixelRatioF();
  const bool moved = layerView_ != view_;
  if (wrong || (moved && (!sinceComposed_.isValid() || sinceComposed_.elapsed() >= ComposeMilliseconds))) {
    Compose();
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, layer_);
  if (layerView_ != view_) {
    PaintMoved(painter);
    if (!recompose_.isActive()) {
      recompose_.start(ComposeMilliseconds);
    }
  }
  PaintRing(painter);
}

/// What the layer holds of the part that shows now, moved and stretched into the box.
void PlotPane::PaintMoved(QPainter& painter) const
{
  const QRectF box(OnScreen({-BoxEdge, -BoxEdge}), OnScreen({BoxEdge, BoxEdge}));
  const QRectF inside = box.adjusted(1, 1, -1, -1);
  const auto placed = [this](DrawPoint layerPlace) {
    return OnScreen(view_.Place(layerView_.Fitted(layerPlace)));
  };
  const QRectF target(placed({-BoxEdge, -BoxEdge}), placed({BoxEdge, BoxEdge}));
  painter.save();
  painter.setClipRect(inside);
  painter.fillRect(inside, Qt::white);
  const double ratio = layer_.devicePixelRatio();
  painter.drawPixmap(target, layer_, QRectF(box.topLeft() * ratio, box.size() * ratio));
  painter.restore();
}

void PlotPane::PaintRing(QPainter& painter) const
{
  constexpr double Radius = 7;
  if (pointed_) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::black, 2));
    painter.drawEllipse(OnScreen(view_.Place(pointed_->At)), Radius, Radius);
  }
}

}  // namespace veln
