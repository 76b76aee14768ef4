#include "desktop/signal/frm_sig_decorr.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"
#include "desktop/signal/frm_list.h"
#include "workspace/captions.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace veln {

namespace {

QLineEdit* MakeLevelText(QWidget* parent, const char* name, const QString& toolTip)
{
  constexpr int Characters = 6;
  auto* text = new QLineEdit(parent);
  text->setObjectName(name);
  text->setToolTip(toolTip);
  text->setReadOnly(true);
  text->setAlignment(Qt::AlignRight);
  text->setFixedWidth(text->fontMetrics().averageCharWidth() * Characters + 2 * LargeGap);
  return text;
}

/// One line of the results: a caption and a right-aligned count.
QLabel* AddResult(QGridLayout& grid, QWidget* parent, const char* captionName, const QString& caption,
                  const char* valueName)
{
  const int row = grid.rowCount();
  QLabel* text = MakeText(parent, captionName, caption);
  text->setWordWrap(false);
  grid.addWidget(text, row, 0);
  QLabel* value = MakeValueLabel(parent, valueName, caption);
  value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(value, row, 1);
  return value;
}

}  // namespace

frmSigDecorr::frmSigDecorr(Program& program, QWidget* parent)
    : ChildWindow(program, parent, {Name, "Signal Decorrelation", {1000, 750}, "hdoc09", MenuEntry::mnuSigD}),
      form_(LoadSigDecorrForm(program.State))
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakeOptions());
  layout->addWidget(MakeResults());
  layout->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("CHelp"));
  buttons->addStretch();
  wayOut_ = MakeButton(this, "Command2", "&Cancel", " exit without computing decorrelated signal values ");
  perform_ = MakeButton(this, "Command1", "&Perform Decorrelation", " compute decorrelated signal values ");
  buttons->addWidget(wayOut_);
  buttons->addWidget(perform_);
  layout->addLayout(buttons);
  perform_->setDefault(true);

  connect(wayOut_, &QPushButton::clicked, this, [this] { Unload(); });
  connect(perform_, &QPushButton::clicked, this, [this] {
    if (Shared().Try([this] { PerformDecorrelation(form_, State()); })) {
      Mirror();
      wayOut_->setFocus();
    }
    Shared().Changed();
  });
  Mirror();
}

QGroupBox* frmSigDecorr::MakeOptions()
{
  auto* frame = new QGroupBox("Options", this);
  frame->setObjectName("Frame1");
  auto* grid = new QGridLayout(frame);
  maskingBar_ = MakeBar("HScroll1", form_.Levels.Masking, MoveMaskingLevel);
  outlierBar_ = MakeBar("HScroll2", form_.Levels.Outlier, MoveOutlierLevel);
  maskingText_ = MakeLevelText(frame, "Text1",
                               " please use upper horizontal scroll bar to set / change masking STD level ");
  outlierText_ = MakeLevelText(frame, "Text2",
                               " please use lower horizontal scroll bar to set / change outlier STD level ");
  maskingText_->setAccessibleName("Masking STD Level");
  outlierText_->setAccessibleName("Outlier STD Level");
  grid->addWidget(MakeFieldLabel(frame, "Label1", "&Masking STD Level:", maskingBar_), 0, 0);
  grid->addWidget(maskingBar_, 0, 1);
  grid->addWidget(maskingText_, 0, 2);
  grid->addWidget(MakeFieldLabel(frame, "Label2", "&Outlier STD Level:", outlierBar_), 1, 0);
  grid->addWidget(outlierBar_, 1, 1);
  grid->addWidget(outlierText_, 1, 2);
  grid->setColumnStretch(1, 1);
  warning_ = MakeText(frame, "Label11", "");
  warning_->setMinimumHeight(warning_->fontMetrics().lineSpacing());
  SetRole(*warning_, TextRole::Warning);
  grid->addWidget(warning_, 2, 0, 1, 3);
  return frame;
}

QGroupBox* frmSigDecorr::MakeResults()
{
  results_ = new QGroupBox("Results", this);
  results_->setObjectName("Frame2");
  KeepRoom(*results_);
  auto* grid = new QGridLayout(results_);
  aboveMasking_ = AddResult(*grid, results_, "Label6", "Number of sites above masking STD level", "Label3");
  aboveOutlier_ = AddResult(*grid, results_, "Label7", "Number of site above outlier STD level", "Label4");
  deleted_ = AddResult(*grid, results_, "Label8", "Number of previously deleted outlier sites", "Label5");
  list_ = MakeButton(results_, "Command3", "&List all Sites above Outlier STD level",
                     " display a list of all outlier sites ");
  KeepRoom(*list_);
  grid->addWidget(list_, grid->rowCount(), 0, 1, 2, Qt::AlignLeft);
  connect(list_, &QPushButton::clicked, this, [this] { Shared().Show<frmList>(); });
  return results_;
}

QScrollBar* frmSigDecorr::MakeBar(const char* name, int level, void (*moveLevel)(SigDecorrForm&, int))
{
  constexpr int SmallChange = 5;
  constexpr int LargeChange = 25;
  constexpr int ShortestBar = 280;
  auto* bar = new QScrollBar(Qt::Horizontal, this);
  bar->setObjectName(name);
  bar->setFocusPolicy(Qt::StrongFocus);
  bar->setInvertedControls(false);  // to the right is more
  bar->setMinimumWidth(ShortestBar);
  bar->setRange(LowestLevel, HighestLevel);
  bar->setSingleStep(SmallChange);
  bar->setPageStep(LargeChange);
  bar->setValue(level);
  connect(bar, &QScrollBar::valueChanged, this, [this, moveLevel](int value) {
    moveLevel(form_, value);
    Mirror();
  });
  return bar;
}

void frmSigDecorr::Mirror()
{
  const QSignalBlocker quietMasking(maskingBar_);
  const QSignalBlocker quietOutlier(outlierBar_);
  maskingBar_->setValue(form_.Levels.Masking);
  outlierBar_->setValue(form_.Levels.Outlier);
  maskingText_->setText(ToQt(LevelText(form_.Levels.Masking)));
  outlierText_->setText(ToQt(LevelText(form_.Levels.Outlier)));
  warning_->setText(ToQt(form_.Label11));
  ShowValue(*aboveMasking_, ToQt(form_.Label3));
  ShowValue(*aboveOutlier_, ToQt(form_.Label4));
  ShowValue(*deleted_, ToQt(form_.Label5));
  results_->setVisible(form_.ResultsVisible);
  results_->setEnabled(form_.ResultsVisible);
  list_->setVisible(form_.Command3Visible);
  if (form_.ResultsVisible) {
    perform_->setEnabled(false);
    perform_->hide();
    wayOut_->setText("&Finished");
    wayOut_->setToolTip("return to main program menu");
    wayOut_->setAccessibleName("Finished");
    wayOut_->setDefault(true);
  }
}

}  // namespace veln
