#include "desktop/design/run_status.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"

#include <QProgressBar>

namespace veln {

RunStatus::RunStatus(QWidget* parent) : QWidget(parent)
{
  auto* caption = new QLabel("Algorithm Status:", this);
  text_ = MakeValueLabel(this, "LblMS", "Algorithm Status:");
  text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  selection_ = new QWidget(this);
  progress_ = new QProgressBar(selection_);
  progress_->setObjectName("selectionProgress");
  progress_->setAccessibleName("Designs made");
  score_ = MakeValueLabel(selection_, "selectionText", "Best score");
  stop_ = MakeButton(selection_, "Stop", "S&top", "stop the selection and leave everything as it was before",
                     [] {});
  selection_->setLayout(Tight(Row({{progress_, 1}, {score_, 1}, stop_})));
  selection_->hide();
  KeepRoom(*selection_);
  setLayout(Tight(Row({caption, {text_, 1}, {selection_, 1}})));
}

void RunStatus::Keep(const QString& text)
{
  constexpr qsizetype Kept = 20;
  if (last_.isEmpty() || last_.constLast() != text) {
    last_.append(text);
    last_.remove(0, qMax(qsizetype{0}, last_.size() - Kept));
  }
}

void RunStatus::ShowLast()
{
  ShowValue(*text_, last_.constLast());
  text_->setToolTip(last_.join('\n'));
  text_->repaint();
}

void RunStatus::ShowProgress(int k, int n, const QString& text)
{
  progress_->setRange(0, n);
  progress_->setValue(k - 1);
  progress_->setFormat(QString("design %1 of %2").arg(k).arg(n));
  ShowValue(*score_, text);
  if (selection_->isHidden()) {
    selection_->show();
    stop_->setFocus();
  }
}

void RunStatus::HideProgress()
{
  selection_->hide();
}

}  // namespace veln
