#include "desktop/survey/frm_basic_stats.h"

#include "desktop/parts/controls.h"
#include "desktop/parts/text_roles.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace veln {

namespace {

/// A check box that keeps `checked` and shows its state by its colour.
QCheckBox* MakeCheck(QWidget* parent, const char* name, const QString& caption, bool enabled, bool& checked)
{
  auto* check = new QCheckBox(caption, parent);
  check->setObjectName(name);
  check->setAccessibleName(WithoutKey(caption));
  check->setEnabled(enabled);
  SetRole(*check, TextRole::Normal);
  QObject::connect(check, &QCheckBox::toggled, check, [check, &checked](bool on) {
    checked = on;
    SetRole(*check, on ? TextRole::Chosen : TextRole::Normal);
  });
  return check;
}

QLineEdit* MakeLabelText(QWidget* parent, const char* name, const std::string& text, const QString& toolTip)
{
  auto* edit = new QLineEdit(ToQt(text), parent);
  edit->setObjectName(name);
  edit->setToolTip(toolTip);
  edit->setMaxLength(LongestLabel);
  return edit;
}

}  // namespace

frmBasicStats::frmBasicStats(Program& program, QWidget* parent)
    : ChildWindow(
          program, parent,
          {Name, "Signal Transformation / Scaling Options", {1000, 750}, "hdoc01", MenuEntry::mnuStats}),
      form_(LoadBasicStatsForm(program.State))
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addWidget(MakeTransformOptions());
  layout->addWidget(MakeScalingOptions());
  layout->addStretch();

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("CHelp"));
  buttons->addStretch();
  QPushButton* cancel =
      MakeButton(this, "Command2", "C&ancel", " exit without recalculating signal statistics ");
  QPushButton* compute = MakeButton(this, "Command1", "&Compute ", " calculate new signal statistics ");
  compute->setDefault(true);
  buttons->addWidget(cancel);
  buttons->addWidget(compute);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(compute, &QPushButton::clicked, this, [this] { Compute(); });
}

QGroupBox* frmBasicStats::MakeTransformOptions()
{
  auto* frame = new QGroupBox("Signal Transformation Options", this);
  frame->setObjectName("Frame1");
  auto* column = new QVBoxLayout(frame);
  QCheckBox* apply =
      MakeCheck(frame, "Check1", "Apply &Natural Log Transformation", form_.Check1Enabled, form_.Check1);
  apply->setToolTip(" apply log transform to signal data ");
  QCheckBox* remove =
      MakeCheck(frame, "Check2", "&Remove Natural Log Transformation", form_.Check2Enabled, form_.Check2);
  remove->setToolTip(" remove log transform from signal data ");
  column->addWidget(apply);
  column->addWidget(remove);

  label1_ = MakeLabelText(frame, "Text1", form_.Labels[0], " enter a new s1 label, if necessary ");
  label2_ = MakeLabelText(frame, "Text2", form_.Labels[1], " enter a new s2 label, if necessary");
  auto* labels = new QFormLayout;
  labels->addRow(MakeFieldLabel(frame, "Label1", "New s&1 label:", label1_), label1_);
  QLabel* caption2 = MakeFieldLabel(frame, "Label2", "New s&2 label:", label2_);
  labels->addRow(caption2, label2_);
  caption2->setVisible(form_.Text2Visible);
  label2_->setVisible(form_.Text2Visible);
  column->addLayout(labels);
  return frame;
}

QGroupBox* frmBasicStats::MakeScalingOptions()
{
  auto* frame = new QGroupBox("Signal Scaling Options", this);
  frame->setObjectName("Frame2");
  frame->setToolTip(" change the scale of the conductivity units ");
  auto* column = new QVBoxLayout(frame);
  column->addWidget(
      MakeCheck(frame, "Check3", "Change scale from &dS/m to mS/m", form_.Check3Enabled, form_.Check3));
  column->addWidget(
      MakeCheck(frame, "Check4", "Change scale from &mS/m to dS/m", form_.Check4Enabled, form_.Check4));
  return frame;
}

void frmBasicStats::Compute()
{
  form_.Labels = {FromQt(label1_->text()), FromQt(label2_->text())};
  if (Shared().Try([this] { ComputeSignals(State(), form_); })) {
    Unload();
  }
  Shared().Changed();
}

}  // namespace veln
