#pragma once

#include "desktop/graphics/site_index.h"
#include "graphics/plot.h"
#include "graphics/plot_axes.h"
#include "graphics/plot_page.h"
#include "render/drawing_painter.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

namespace veln {

/// The plot box with its ticks, on white paper. The picture is composed once into a layer that repaints take;
/// while the view moves the layer is moved and stretched, and composed anew at most 60 times a second.
///
/// The wheel, + and - zoom, about the pointer or the middle; dragging and arrows move; a double click or Home
/// shows all. Pointing at a site rings it and shows a tool-tip.
class PlotPane : public QWidget {
 public:
  explicit PlotPane(QWidget* parent);

  /// Shows a plot, which must outlive its stay here. The view stays unless `fit` is asked for.
  void Show(const Plot& plot, const MapFurniture& furniture, bool fit);
  /// Sites can be pointed at no more: the survey is not the one that the plot shows.
  void ForgetSites();

  [[nodiscard]] const PlotView& View() const { return view_; }
  void SetView(const PlotView& view);

  /// Told when another part of the plot shows.
  std::function<void()> ViewChanged;
  /// The text of a site that is pointed at.
  std::function<QString(int site)> Describe;

  /// A place of the surface in the widget's pixels.
  [[nodiscard]] QPointF OnScreen(DrawPoint surface) const;
  /// How many pixels of the widget a unit of the surface is long.
  [[nodiscard]] double UnitLength() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct BoxPlace {
    double Left, Top, Side;  // in pixels of the screen
  };
  [[nodiscard]] BoxPlace PlaceBox() const;
  [[nodiscard]] DrawingFrame Frame() const;
  [[nodiscard]] DrawPoint OnSurface(QPointF point) const;
  void Zoom(double factor, DrawPoint about);
  void Move(double dx, double dy);
  void Point(QPointF where, QPoint global);
  void Compose();
  void PaintMoved(QPainter& painter) const;
  void PaintRing(QPainter& painter) const;

  const Plot* plot_ = nullptr;
  MapFurniture furniture_;
  PlotView view_;
  SiteIndex sites_;
  std::optional<PlotSite> pointed_;
  std::optional<QPointF> dragged_;  // where the pointer was

  QPixmap layer_;
  PlotView layerView_;
  bool layerOld_ = true;  // shows another plot
  QElapsedTimer sinceComposed_;
  QTimer recompose_;
};

}  // namespace veln
