#include "desktop/parts/layout.h"

#include <QPushButton>
#include <QSizePolicy>

namespace veln {

namespace {

template <class Line>
Line* Fill(Line* line, std::initializer_list<LayoutItem> items, int gap)
{
  line->setSpacing(gap);
  for (const LayoutItem& item : items) {
    item.AddTo(*line);
  }
  return line;
}

}  // namespace

void LayoutItem::AddTo(QBoxLayout& line) const
{
  if (widget_ != nullptr) {
    line.addWidget(widget_, share_);
  } else if (layout_ != nullptr) {
    line.addLayout(layout_, share_);
  } else if (gap_ > 0) {
    line.addSpacing(gap_);
  } else {
    line.addStretch(share_);
  }
}

QHBoxLayout* Row(std::initializer_list<LayoutItem> items, int gap)
{
  return Fill(new QHBoxLayout, items, gap);
}

QVBoxLayout* Column(std::initializer_list<LayoutItem> items, int gap)
{
  return Fill(new QVBoxLayout, items, gap);
}

QGroupBox* Frame(QWidget* parent, const char* name, const QString& title, QLayout* content)
{
  auto* frame = new QGroupBox(title, parent);
  frame->setObjectName(name);
  frame->setLayout(content);
  return frame;
}

void SetColumn(QWidget& window, std::initializer_list<LayoutItem> items, int gap)
{
  QLayout* column = Column(items, gap);
  column->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  window.setLayout(column);
}

QLayout* ButtonRow(std::initializer_list<QPushButton*> buttons)
{
  QHBoxLayout* row = Row({});
  for (QPushButton* button : buttons) {
    if (button != nullptr) {
      row->addWidget(button);
    }
    if (button == *buttons.begin()) {
      row->addStretch();
    }
  }
  (*(buttons.end() - 1))->setDefault(true);
  return row;
}

void KeepRoom(QWidget& widget)
{
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

void SetShown(std::initializer_list<QWidget*> widgets, bool shown)
{
  for (QWidget* widget : widgets) {
    widget->setVisible(shown);
  }
}

}  // namespace veln
