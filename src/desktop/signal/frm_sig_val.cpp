#include "desktop/signal/frm_sig_val.h"

#include "desktop/parts/busy_pointer.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/layout.h"
#include "desktop/parts/text_roles.h"
#include "desktop/signal/frm_sig_decorr.h"

namespace veln {

frmSigVal::frmSigVal(Program& program, QWidget* parent)
    : FormWindow(program, parent, {Name, "Signal Validation", "hdoc10", MenuEntry::mnuSigV},
                 LoadSigValForm(program.State))
{
  SetColumn(*this,
            {MakeValidationOptions(), MakeTransitionOption(), MakeEdgeOptions(), LayoutItem::Rest(),
             ButtonRow({HelpButton("CHelp"),
                        MakeButton(this, "Command1", "&Cancel",
                                   " exit without performing any signal validation actions ", Leaves()),
                        MakeButton(this, "Command2", QString("&") + form_.Command2Caption(),
                                   form_.Command2ToolTip(), [this] { Validate(); })})});
  Mirror();
}

QGroupBox* frmSigVal::MakeValidationOptions()
{
  deleteOption_ = MakeOption(
      this, "Option1", "&delete all outliers and perform new signal decorrelation",
      " indicates that all outlier sites should be deleted and a new signal decorrelation should be "
      "performed ",
      Does(ChooseDeletion));
  QString caption = form_.Option2Caption();
  caption.replace(form_.OutliersFound ? "mask" : "outliers", form_.OutliersFound ? "&mask" : "&outliers");
  acceptOption_ = MakeOption(this, "Option2", caption, form_.Option2ToolTip(), [this] {
    ChooseAcceptance(form_, State());
    Mirror();
  });
  return Frame(this, "Frame1", "Validation Options", Column({deleteOption_, acceptOption_}));
}

QGroupBox* frmSigVal::MakeTransitionOption()
{
  transition_ =
      MakeCheck(this, "Check2", "perform spatial &transition analysis on primary z1 signal component ",
                " click here to perform a spatial transition analysis  ", Keeps(&SigValForm::Check2));
  transitionNote_ =
      MakeText(this, "Label1",
               "Note:  The Transition Analysis option should not be invoked unless you understand how "
               "this algorithm works (refer to the OnLine Help documentation for details).");
  SetRole(*transitionNote_, TextRole::Caution);
  KeepRoom(*transitionNote_);
  return Frame(this, "Frame2", "Transition Analysis Option  (applicable only to transect signal data)",
               Column({transition_, transitionNote_}));
}

QGroupBox* frmSigVal::MakeEdgeOptions()
{
  edgeBuffering_ = MakeCheck(this, "ChkEB1", "Invoke &Edge Buffering Algorithm",
                             " click here to invoke the edge buffering algorithm ", Takes(TickEdgeBuffering));
  rowCount_ = MakeLine(this, "LblRC", "");
  rowQuestion_ = MakeLine(this, "Label2", "mask all sites in 1st and last rows:");
  rowsYes_ = MakeOption(this, "OptEB1", "&Yes", "", Does(ChooseRowBuffering, true));
  rowsNo_ = MakeOption(this, "OptEB2", "&No", "", Does(ChooseRowBuffering, false));
  return Frame(
      this, "Frame3", "Edge Buffering Option  (applicable only to transect signal data)",
      Column({Row({edgeBuffering_, LayoutItem::Rest(), rowCount_}),
              Row({rowQuestion_, LayoutItem::Gap(SmallGap), rowsYes_, rowsNo_, LayoutItem::Rest()})}));
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
