#include "desktop/graphics/frm_legend.h"

#include "desktop/graphics/frm_svy_graph.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "graphics/map_legend.h"
#include "render/drawing_painter.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace veln {

namespace {

constexpr double FirstDot = 320;  // twips from the top
constexpr double DotStep = 360;
constexpr double LabelLeft = 640;
constexpr double DotColumn = 2 * 440;

/// The dots with their labels beside them, black on white paper. Larger fonts spread the dots.
class LegendView : public QWidget {
 public:
  LegendView(QWidget* parent, const MapLegend& legend) : QWidget(parent), dots_(LegendDots(legend))
  {
    const double step = fontMetrics().lineSpacing() + SmallGap / 2.0;
    scale_ = std::max(1.0, step * TwipsPerPixel / DotStep);
    QPalette paper;
    paper.setColor(QPalette::Window, Qt::white);
    paper.setColor(QPalette::WindowText, Qt::black);
    setPalette(paper);
    constexpr std::array<const char*, 4> Names = {"Label1", "Label2", "Label3", "Label4"};
    int widest = 0;
    for (std::size_t i = 0; i < Names.size(); ++i) {
      QLabel* label = MakeLine(this, Names.at(i), ToQt(legend.Labels.at(i)));
      label->adjustSize();
      const double y = (FirstDot + DotStep * static_cast<double>(i)) / TwipsPerPixel * scale_;
      label->move(qRound(LabelLeft / TwipsPerPixel * scale_), qRound(y - label->height() / 2.0));
      widest = std::max(widest, label->x() + label->width());
    }
    const double high = dots_.PixelWidth * dots_.ScaleHeight / dots_.ScaleWidth * scale_;
    setFixedSize(std::max(qRound(dots_.PixelWidth * scale_), widest + LargeGap), qRound(high));
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override
  {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setClipRect(QRectF(0, 0, DotColumn / TwipsPerPixel * scale_, height()));
    const double width = dots_.PixelWidth * scale_;
    PaintDrawing(painter, dots_, {QRectF(0, 0, width, width * dots_.ScaleHeight / dots_.ScaleWidth), scale_});
  }

 private:
  Drawing dots_;
  double scale_ = 1;
};

const MapLegend& EmptyLegend()
{
  static const MapLegend Empty;
  return Empty;
}

}  // namespace

frmLegend::frmLegend(Program& program, QWidget* parent)
    : ChildWindow(program, frmSvyGraph::OwnerOfCompanions(program, parent),
                  {Name, "", "", {}, program.Find<frmSvyGraph>(), QPoint(1000, 500)})
{
  const auto* window = program.Find<frmSvyGraph>();
  const MapLegend legend =
      window == nullptr ? EmptyLegend() : LoadLegend(window->Graph().Options, window->Graph().MapTag);
  setWindowTitle(ToQt(legend.Caption));
  setLayout(Tight(Column({new LegendView(this, legend)})));
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace veln
