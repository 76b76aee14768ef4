#include "desktop/signal/frm_sig_val.h"

#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"
#include "desktop/signal/frm_sig_decorr.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace veln {

frmSigVal::frmSigVal(Program& program, QWidget* parent)
    : ChildWindow(program, parent, {Name, "Signal Validation", {1000, 750}, "hdoc10", MenuEntry::mnuSigV}),
      form_(LoadSigValForm(program.State))
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakeValidationOptions());
  layout->addWidget(MakeTransitionOption());
  layout->addWidget(MakeEdgeOptions());
  layout->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("CHelp"));
  buttons->addStretch();
  QPushButton* cancel =
      MakeButton(this, "Command1", "&Cancel", " exit without performing any signal validation actions ");
  validate_ = MakeButton(this, "Command2", QString("&") + form_.Command2Caption(), form_.Command2ToolTip());
  validate_->setDefault(true);
  buttons->addWidget(cancel);
  buttons->addWidget(validate_);
  layout->addLayout(buttons);

  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(validate_, &QPushButton::clicked, this, [this] { Validate(); });
  Mirror();
}

QGroupBox* frmSigVal::MakeValidationOptions()
{
  auto* frame = new QGroupBox("Validation Options", this);
  frame->setObjectName("Frame1");
  auto* column = new QVBoxLayout(frame);
  deleteOption_ = MakeOption(
      frame, "Option1", "&delete all outliers and perform new signal decorrelation",
      " indicates that all outlier sites should be deleted and a new signal decorrelation should be "
      "performed ");
  QString caption = form_.Option2Caption();
  caption.replace(form_.OutliersFound ? "mask" : "outliers", form_.OutliersFound ? "&mask" : "&outliers");
  acceptOption_ = MakeOption(frame, "Option2", caption, form_.Option2ToolTip());
  column->addWidget(deleteOption_);
  column->addWidget(acceptOption_);
  connect(deleteOption_, &QRadioButton::clicked, this, [this] {
    ChooseDeletion(form_);
    Mirror();
  });
  connect(acceptOption_, &QRadioButton::clicked, this, [this] {
    ChooseAcceptance(form_, State());
    Mirror();
  });
  return frame;
}

QGroupBox* frmSigVal::MakeTransitionOption()
{
  auto* frame = new QGroupBox("Transition Analysis Option  (applicable only to transect signal data)", this);
  frame->setObjectName("Frame2");
  auto* column = new QVBoxLayout(frame);
  transition_ =
      MakeCheck(frame, "Check2", "perform spatial &transition analysis on primary z1 signal component ",
                " click here to perform a spatial transition analysis  ");
  transitionNote_ =
      MakeText(frame, "Label1",
               "Note:  The Transition Analysis option should not be invoked unless you understand how "
               "this algorithm works (refer to the OnLine Help documentation for details).");
  SetRole(*transitionNote_, TextRole::Caution);
  KeepRoom(*transitionNote_);
  column->addWidget(transition_);
  column->addWidget(transitionNote_);
  connect(transition_, &QCheckBox::toggled, this, [this](bool on) {
    form_.Check2 = on;
    Mirror();
  });
  return frame;
}

QGroupBox* frmSigVal::MakeEdgeOptions()
{
  auto* frame = new QGroupBox("Edge Buffering Option  (applicable only to transect signal data)", this);
  frame->setObjectName("Frame3");
  auto* column = new QVBoxLayout(frame);
  edgeBuffering_ = MakeCheck(frame, "ChkEB1", "Invoke &Edge Buffering Algorithm",
                             " click here to invoke the edge buffering algorithm ");
  rowCount_ = MakeText(frame, "LblRC", "");
  rowQuestion_ = MakeText(frame, "Label2", "mask all sites in 1st and last rows:");
  rowQuestion_->setWordWrap(false);
  rowCount_->setWordWrap(false);
  rowsYes_ = MakeOption(frame, "OptEB1", "&Yes", "");
  rowsNo_ = MakeOption(frame, "OptEB2", "&No", "");
  auto* first = new QHBoxLayout;
  first->addWidget(edgeBuffering_);
  first->addStretch();
  first->addWidget(rowCount_);
  auto* second = new QHBoxLayout;
  second->addWidget(rowQuestion_);
  second->addSpacing(SmallGap);
  second->addWidget(rowsYes_);
  second->addWidget(rowsNo_);
  second->addStretch();
  column->addLayout(first);
  column->addLayout(second);
  connect(edgeBuffering_, &QCheckBox::toggled, this, [this](bool on) {
    TickEdgeBuffering(form_, on);
    Mirror();
  });
  for (const bool yes : {true, false}) {
    connect(yes ? rowsYes_ : rowsNo_, &QRadioButton::clicked, this, [this, yes] {
      ChooseRowBuffering(form_, yes);
      Mirror();
    });
  }
  return frame;
}

void frmSigVal::Validate()
{
  Program& program = Shared();
  if (form_.Option1) {
    if (program.Try([this] { DeleteOutliers(State()); })) {
      Unload();
      program.Changed();
      program.Show<frmSigDecorr>();
    }
    return;
  }
  const bool accepted = program.Try([this, &program] {
    const BusyPointer busy;
    AcceptConfiguration(State(), form_.Options(), program.Ask(), program.Now());
  });
  if (accepted) {
    Unload();
    program.Changed();
  }
}

void frmSigVal::Mirror()
{
  ShowChoice(*deleteOption_, form_.Option1, form_.Option1Enabled);
  ShowChoice(*acceptOption_, form_.Option2, true);
  ShowChoice(*transition_, form_.Check2, form_.Check2Enabled);
  transitionNote_->setVisible(form_.Check2);
  ShowChoice(*edgeBuffering_, form_.ChkEB1, form_.ChkEB1Enabled);
  rowCount_->setText(ToQt(form_.LblRC));
  rowCount_->setEnabled(form_.LblRCEnabled);
  rowQuestion_->setEnabled(form_.Label2Enabled);
  ShowChoice(*rowsYes_, form_.OptEB1, form_.OptEBEnabled);
  ShowChoice(*rowsNo_, form_.OptEB2, form_.OptEBEnabled);
}

}  // namespace veln
