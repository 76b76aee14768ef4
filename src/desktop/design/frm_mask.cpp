#include "desktop/design/frm_mask.h"

#include "desktop/design/site_table.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/filtered_edit.h"
#include "desktop/parts/text_roles.h"
#include "forms/design_table.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace veln {

frmMask::frmMask(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name, "Manual Sample Site Selection", {1000, 750}, "hdoc06", MenuEntry::mnuMask}),
      form_(OpenMaskForm(program.State))
{
  auto* left = new QVBoxLayout;
  left->setSpacing(LargeGap);
  left->addLayout(MakeEntry());
  left->addLayout(MakeAnswer());
  left->addStretch();
  left->addLayout(MakeButtons());
  sites_ = MakeSiteTable(this, program.State, ListManualSites(program.State));
  sites_->setAccessibleName("Selected sites");
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  layout->addLayout(left);
  layout->addWidget(sites_, 1);
  Mirror();
  number_->setFocus();
}

QLayout* frmMask::MakeEntry()
{
  constexpr int LongestNumber = 5;
  auto* column = new QVBoxLayout;
  number_ = new FilteredEdit(this, [this](const Keystroke& key) {
    const bool passes = KeyInSiteNumber(key.Character, Shared().Ask());
    if (passes) {
      form_.Text1 = key.After;
    }
    return passes;
  });
  number_->setObjectName("Text1");
  number_->setToolTip(" enter survey site number here ");
  number_->setMaxLength(LongestNumber);
  auto* line = new QHBoxLayout;
  line->addWidget(MakeFieldLabel(this, "Label1", "Please &Enter Survey Site #", number_));
  line->addWidget(number_);
  column->addLayout(line);
  QPushButton* select = MakeButton(this, "Command1", "&Select Site", " add site to design ");
  QPushButton* unselect = MakeButton(this, "Command2", "&Unselect Site", " remove site from design ");
  select->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(select);
  buttons->addWidget(unselect);
  column->addLayout(buttons);
  connect(select, &QPushButton::clicked, this, [this] { Act(SelectSite); });
  connect(unselect, &QPushButton::clicked, this, [this] { Act(UnselectSite); });
  return column;
}

QLayout* frmMask::MakeAnswer()
{
  auto* column = new QVBoxLayout;
  answer_ = MakeText(this, "Label2", "");
  KeepRoom(*answer_);
  list_ = new QPlainTextEdit(this);
  list_->setObjectName("Text2");
  list_->setAccessibleName("Selected sites");
  list_->setToolTip(" to add or remove a site, use the Select / Unselect buttons... ");
  list_->setReadOnly(true);
  list_->setTabChangesFocus(true);
  KeepRoom(*list_);
  QPushButton* show = MakeButton(this, "Command4", "Show &List of Currently Selected Sites",
                                 " display all currently selected sites ");
  column->addWidget(answer_);
  column->addWidget(show);
  column->addWidget(list_);
  connect(show, &QPushButton::clicked, this, [this] {
    ListSelectedSites(form_, State());
    Mirror();
    number_->setFocus();
  });
  return column;
}

QLayout* frmMask::MakeButtons()
{
  auto* column = new QVBoxLayout;
  save_ = new QCheckBox("Save &current set of selected sites to Output file", this);
  save_->setObjectName("Check1");
  save_->setAccessibleName("Save current set of selected sites to Output file");
  save_->setToolTip(" check here to save the current set of selected sites to the [ugsd] output file ");
  column->addWidget(save_);
  auto* buttons = new QHBoxLayout;
  QPushButton* done = MakeButton(this, "Command3", "&Done", " return to main program menu ");
  buttons->addWidget(HelpButton("CHelp"));
  buttons->addStretch();
  buttons->addWidget(done);
  column->addLayout(buttons);
  connect(save_, &QCheckBox::toggled, this, [this](bool on) {
    form_.Check1 = on;
    Mirror();
  });
  connect(done, &QPushButton::clicked, this, [this] { Finish(); });
  return column;
}

void frmMask::Act(void (*action)(MaskForm&, SurveyState&))
{
  action(form_, State());
  Mirror();
  number_->setFocus();
  Shared().Changed();
}

void frmMask::Finish()
{
  Program& program = Shared();
  program.Try([&] { FinishManualSelection(form_, State(), program.Ask(), program.Now()); });
  if (form_.Closed) {
    Unload();
  }
  program.Changed();
}

void frmMask::Mirror()
{
  number_->Show(ToQt(form_.Text1));
  ShowValue(*answer_, ToQt(form_.Label2));
  answer_->setVisible(form_.Label2Visible);
  SetRole(*answer_, form_.Label2Colour == MaskForm::Colour::LightRed ? TextRole::Warning : TextRole::Chosen);
  list_->setPlainText(ToQt(form_.Text2));
  list_->setVisible(form_.Text2Visible);
  SetRole(*save_, form_.Check1 ? TextRole::Chosen : TextRole::Normal);
  FillSiteTable(*sites_, ListManualSites(State()));
}

}  // namespace veln
