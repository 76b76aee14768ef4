#include "desktop/signal/frm_sig_decorr.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"
#include "desktop/parts/text_roles.h"
#include "desktop/signal/frm_list.h"
#include "workspace/captions.h"

#include <QGridLayout>

namespace veln {

namespace {

constexpr int ShortestBar = 280;

/// One line of the results: a caption and a right-aligned count.
QLabel* AddResult(QGridLayout& grid, const char* captionName, const QString& caption, const char* valueName)
{
  const int row = grid.rowCount();
  grid.addWidget(MakeLine(nullptr, captionName, caption), row, 0);
  QLabel* value = MakeValueLabel(nullptr, valueName, caption, Qt::AlignRight);
  grid.addWidget(value, row, 1);
  return value;
}

}  // namespace

frmSigDecorr::frmSigDecorr(Program& program, QWidget* parent)
    : FormWindow(program, parent, {Name, "Signal Decorrelation", "hdoc09", MenuEntry::mnuSigD},
                 LoadSigDecorrForm(program.State))
{
  QGroupBox* options = MakeOptions();
  results_ = MakeResults();
  QPushButton* help = HelpButton("CHelp");
  wayOut_ = MakeButton(this, "Command2", "&Cancel", " exit without computing decorrelated signal values ",
                       Leaves());
  perform_ = MakeButton(this, "Command1", "&Perform Decorrelation", " compute decorrelated signal values ",
                        [this] { Perform(); });
  SetColumn(*this, {options, results_, LayoutItem::Rest(), ButtonRow({help, wayOut_, perform_})});
  Mirror();
}

QGroupBox* frmSigDecorr::MakeOptions()
{
  constexpr BarSteps Steps{LowestLevel, HighestLevel, 25, 5};
  constexpr int Digits = 6;
  maskingBar_ = MakeBar(this, "HScroll1", Steps, Takes(MoveMaskingLevel));
  outlierBar_ = MakeBar(this, "HScroll2", Steps, Takes(MoveOutlierLevel));
  maskingText_ = MakeShownNumber(
      this, "Text1", " please use upper horizontal scroll bar to set / change masking STD level ", Digits);
  outlierText_ = MakeShownNumber(
      this, "Text2", " please use lower horizontal scroll bar to set / change outlier STD level ", Digits);
  maskingText_->setAccessibleName("Masking STD Level");
  outlierText_->setAccessibleName("Outlier STD Level");
  maskingBar_->setMinimumWidth(ShortestBar);
  auto* grid = new QGridLayout;
  grid->addWidget(MakeFieldLabel(this, "Label1", "&Masking STD Level:", maskingBar_), 0, 0);
  grid->addWidget(maskingBar_, 0, 1);
  grid->addWidget(maskingText_, 0, 2);
  grid->addWidget(MakeFieldLabel(this, "Label2", "&Outlier STD Level:", outlierBar_), 1, 0);
  grid->addWidget(outlierBar_, 1, 1);
  grid->addWidget(outlierText_, 1, 2);
  grid->setColumnStretch(1, 1);
  warning_ = MakeText(this, "Label11", "");
  warning_->setMinimumHeight(warning_->fontMetrics().lineSpacing());
  SetRole(*warning_, TextRole::Warning);
  grid->addWidget(warning_, 2, 0, 1, 3);
  return Frame(this, "Frame1", "Options", grid);
}

QGroupBox* frmSigDecorr::MakeResults()
{
  auto* grid = new QGridLayout;
  aboveMasking_ = AddResult(*grid, "Label6", "Number of sites above masking STD level", "Label3");
  aboveOutlier_ = AddResult(*grid, "Label7", "Number of site above outlier STD level", "Label4");
  deleted_ = AddResult(*grid, "Label8", "Number of previously deleted outlier sites", "Label5");
  list_ = MakeButton(this, "Command3", "&List all Sites above Outlier STD level",
                     " display a list of all outlier sites ", [this] { Shared().Show<frmList>(); });
  KeepRoom(*list_);
  grid->addWidget(list_, grid->rowCount(), 0, 1, 2, Qt::AlignLeft);
  QGroupBox* results = Frame(this, "Frame2", "Results", grid);
  KeepRoom(*results);
  return results;
}

void frmSigDecorr::Perform()
{
  if (Shared().Try([this] { PerformDecorrelation(form_, State()); })) {
    Mirror();
    wayOut_->setFocus();
  }
  Shared().Changed();
}

void frmSigDecorr::Mirror()
{
  ShowNumber(*maskingBar_, form_.Levels.Masking);
  ShowNumber(*outlierBar_, form_.Levels.Outlier);
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
    SetCaption(*wayOut_, "&Finished");
    wayOut_->setToolTip("return to main program menu");
    wayOut_->setDefault(true);
  }
}

}  // namespace veln
