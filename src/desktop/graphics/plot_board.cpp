#include "desktop/graphics/plot_board.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "desktop/parts/text_roles.h"

#include <QEvent>
#include <QLineEdit>

#include <algorithm>

namespace veln {

namespace {

constexpr double SmallestFont = 9;  // points
constexpr double TitleScale = 1.15;
constexpr int FirstSide = 640;

/// A text without a frame that can be copied.
QLineEdit* MakeLabel(QWidget* parent, const char* name, const char* accessibleName, Qt::Alignment side)
{
  QLineEdit* text = MakeShownText(parent, name);
  text->setAccessibleName(accessibleName);
  text->setFocusPolicy(Qt::ClickFocus);  // the plot's description tells them all
  text->setFrame(false);
  text->setAlignment(side | Qt::AlignVCenter);
  text->setTextMargins(0, 0, 0, 0);
  return text;
}

void ShowLabel(QLineEdit& label, const std::string& text)
{
  ShowText(label, text);
  label.setCursorPosition(0);
}

}  // namespace

PlotBoard::PlotBoard(QWidget* parent) : QWidget(parent)
{
  QFont labelFont = font();
  labelFont.setPointSizeF(std::max(labelFont.pointSizeF(), SmallestFont));
  setFont(labelFont);
  QPalette clear;  // the boxes have the ground of the window
  clear.setColor(QPalette::Base, Qt::transparent);
  setPalette(clear);

  title_ = MakeLabel(this, "txtTitle", "Title", Qt::AlignHCenter);
  QFont titleFont = labelFont;
  titleFont.setPointSizeF(labelFont.pointSizeF() * TitleScale);
  titleFont.setBold(true);
  title_->setFont(titleFont);
  SetRole(*title_, TextRole::Maker);
  labelsY_ = {MakeLabel(this, "txtMaxY", "Top of the y axis", Qt::AlignRight),
              MakeLabel(this, "txtMedY", "Middle of the y axis", Qt::AlignRight),
              MakeLabel(this, "txtMinY", "Bottom of the y axis", Qt::AlignRight)};
  pane_ = new PlotPane(this);
  pane_->setAccessibleName("Plot");
  labelsX_ = {MakeLabel(this, "txtMinX", "Left of the x axis", Qt::AlignLeft),
              MakeLabel(this, "txtMedX", "Middle of the x axis", Qt::AlignHCenter),
              MakeLabel(this, "txtMaxX", "Right of the x axis", Qt::AlignRight)};
  pane_->ViewChanged = [this] { ShowLabels(); };
}

void PlotBoard::Show(const Plot& plot, const MapFurniture& furniture, bool fit)
{
  plot_ = &plot;
  pane_->Show(plot, furniture, fit);
  ShowLabel(*title_, plot.Title);
  ShowLabels();
}

void PlotBoard::ShowLabels()
{
  const AxisLabels labels = VisibleLabels(*plot_, pane_->View());
  ShowLabel(*labelsX_[0], labels.txtMinX);
  ShowLabel(*labelsX_[1], labels.txtMedX);
  ShowLabel(*labelsX_[2], labels.txtMaxX);
  ShowLabel(*labelsY_[0], labels.txtMaxY);
  ShowLabel(*labelsY_[1], labels.txtMedY);
  ShowLabel(*labelsY_[2], labels.txtMinY);
  pane_->setAccessibleDescription(ToQt(DescribePlot(*plot_, labels)));
  Arrange();
}

int PlotBoard::LabelHeight() const
{
  return fontMetrics().height() + SmallGap / 2;
}

/// Wide enough for the coordinates that are usual, so that a view that moves does not move the box.
int PlotBoard::LabelColumn() const
{
  int widest = fontMetrics().horizontalAdvance("0000000.00");
  for (const QLineEdit* label : labelsY_) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(label->text()));
  }
  return widest + SmallGap;
}

QSize PlotBoard::sizeHint() const
{
  return {LabelColumn() + FirstSide, title_->sizeHint().height() + FirstSide + LabelHeight()};
}

QSize PlotBoard::minimumSizeHint() const
{
  const QSize pane = pane_->minimumSize();
  return {LabelColumn() + pane.width(), title_->sizeHint().height() + pane.height() + LabelHeight()};
}

void PlotBoard::resizeEvent(QResizeEvent* event)
{
  QWidget::resizeEvent(event);
  Arrange();
}

void PlotBoard::changeEvent(QEvent* event)
{
  if (event->type() == QEvent::FontChange) {
    updateGeometry();
    Arrange();
  }
  QWidget::changeEvent(event);
}

void PlotBoard::Arrange()
{
  if (pane_ == nullptr || labelsX_.back() == nullptr) {
    return;
  }
  const int titleHeight = title_->sizeHint().height();
  const int labelHeight = LabelHeight();
  const int column = LabelColumn();
  const int side = std::max(1, std::min(width() - column, height() - titleHeight - labelHeight));
  const int left = (width() - column - side) / 2 + column;
  const int top = (height() - titleHeight - side - labelHeight) / 2 + titleHeight;
  title_->setGeometry(0, top - titleHeight, width(), titleHeight);
  pane_->setGeometry(left, top, side, side);
  constexpr std::array<double, 3> Ticks = {-1, 0, 1};
  for (std::size_t i = 0; i < labelsY_.size(); ++i) {
    const double y = top + pane_->OnScreen({0, Ticks.at(i)}).y();
    labelsY_.at(i)->setGeometry(left - column, qRound(y - labelHeight / 2.0), column - SmallGap / 4,
                                labelHeight);
  }
  const double boxLeft = left + pane_->OnScreen({-BoxEdge, 0}).x();
  const double third = 2 * BoxEdge * pane_->UnitLength() / static_cast<double>(labelsX_.size());
  for (std::size_t i = 0; i < labelsX_.size(); ++i) {
    const int from = qRound(boxLeft + third * static_cast<double>(i));
    const int to = qRound(boxLeft + third * static_cast<double>(i + 1));
    labelsX_.at(i)->setGeometry(from, top + side, to - from, labelHeight);
  }
}

}  // namespace veln
