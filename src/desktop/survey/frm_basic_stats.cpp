#include "desktop/survey/frm_basic_stats.h"

#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/layout.h"

#include <QFormLayout>

namespace veln {

frmBasicStats::frmBasicStats(Program& program, QWidget* parent)
    : FormWindow(program, parent,
                 {Name, "Signal Transformation / Scaling Options", "hdoc01", MenuEntry::mnuStats},
                 LoadBasicStatsForm(program.State))
{
  SetColumn(*this, {MakeTransformOptions(), MakeScalingOptions(), LayoutItem::Rest(),
                    ButtonRow({HelpButton("CHelp"),
                               MakeButton(this, "Command2", "C&ancel",
                                          " exit without recalculating signal statistics ", Leaves()),
                               MakeButton(this, "Command1", "&Compute ", " calculate new signal statistics ",
                                          [this] { Compute(); })})});
  Mirror();
}

QGroupBox* frmBasicStats::MakeTransformOptions()
{
  checks_[0] = MakeCheck(this, "Check1", "Apply &Natural Log Transformation",
                         " apply log transform to signal data ", Keeps(&BasicStatsForm::Check1));
  checks_[1] = MakeCheck(this, "Check2", "&Remove Natural Log Transformation",
                         " remove log transform from signal data ", Keeps(&BasicStatsForm::Check2));
  const auto makeLabel = [this](const char* name, std::size_t signal, const QString& toolTip) {
    QLineEdit* edit = MakeEdit(this, name, toolTip, LongestLabel,
                               [this, signal](const std::string& text) { form_.Labels.at(signal) = text; });
    ShowText(*edit, form_.Labels.at(signal));
    return edit;
  };
  QLineEdit* edit1 = makeLabel("Text1", 0, " enter a new s1 label, if necessary ");
  QLineEdit* edit2 = makeLabel("Text2", 1, " enter a new s2 label, if necessary");
  QLabel* caption2 = MakeFieldLabel(this, "Label2", "New s&2 label:", edit2);
  auto* labels = new QFormLayout;
  labels->addRow(MakeFieldLabel(this, "Label1", "New s&1 label:", edit1), edit1);
  labels->addRow(caption2, edit2);
  QGroupBox* frame =
      Frame(this, "Frame1", "Signal Transformation Options", Column({checks_[0], checks_[1], labels}));
  SetShown({caption2, edit2}, form_.Text2Visible);
  return frame;
}

QGroupBox* frmBasicStats::MakeScalingOptions()
{
  checks_[2] =
      MakeCheck(this, "Check3", "Change scale from &dS/m to mS/m", "", Keeps(&BasicStatsForm::Check3));
  checks_[3] =
      MakeCheck(this, "Check4", "Change scale from &mS/m to dS/m", "", Keeps(&BasicStatsForm::Check4));
  QGroupBox* frame = Frame(this, "Frame2", "Signal Scaling Options", Column({checks_[2], checks_[3]}));
  frame->setToolTip(" change the scale of the conductivity units ");
  return frame;
}

void frmBasicStats::Compute()
{
  if (Shared().Try([this] { ComputeSignals(State(), form_); })) {
    Unload();
  }
  Shared().Changed();
}

void frmBasicStats::Mirror()
{
  ShowChoice(*checks_[0], form_.Check1, form_.Check1Enabled);
  ShowChoice(*checks_[1], form_.Check2, form_.Check2Enabled);
  ShowChoice(*checks_[2], form_.Check3, form_.Check3Enabled);
  ShowChoice(*checks_[3], form_.Check4, form_.Check4Enabled);
}

}  // namespace veln
