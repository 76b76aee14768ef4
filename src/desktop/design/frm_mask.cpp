#include "desktop/design/frm_mask.h"

#include "desktop/design/site_table.h"
#include "desktop/parts/choices.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/filtered_edit.h"
#include "desktop/parts/layout.h"
#include "forms/design_table.h"

#include <QPlainTextEdit>

namespace veln {

frmMask::frmMask(Program& program, QWidget* parent)
    : FormWindow(program, parent, {Name, "Manual Sample Site Selection", "hdoc06", MenuEntry::mnuMask},
                 OpenMaskForm(program.State))
{
  QLayout* entry = MakeEntry();
  QLayout* answer = MakeAnswer();
  save_ = MakeCheck(this, "Check1", "Save &current set of selected sites to Output file",
                    " check here to save the current set of selected sites to the [ugsd] output file ",
                    Keeps(&MaskForm::Check1));
  QPushButton* help = HelpButton("CHelp");
  QPushButton* done =
      MakeButton(this, "Command3", "&Done", " return to main program menu ", [this] { Finish(); });
  sites_ = new SiteTable(this, "Selected sites", program.State, ListManualSites(program.State));
  QLayout* left =
      Column({entry, answer, LayoutItem::Rest(), save_, Row({help, LayoutItem::Rest(), done})}, LargeGap);
  SetColumn(*this, {{Row({left, {sites_, 1}}, LargeGap), 1}});
  Mirror();
  number_->setFocus();
}

QLayout* frmMask::MakeEntry()
{
  constexpr int LongestNumber = 5;
  number_ = new FilteredEdit(this, "Text1", " enter survey site number here ", [this](const Keystroke& key) {
    const bool passes = KeyInSiteNumber(key.Character, Shared().Ask());
    if (passes) {
      form_.Text1 = key.After;
    }
    return passes;
  });
  number_->setMaxLength(LongestNumber);
  QPushButton* select =
      MakeButton(this, "Command1", "&Select Site", " add site to design ", [this] { Act(SelectSite); });
  QPushButton* unselect = MakeButton(this, "Command2", "&Unselect Site", " remove site from design ",
                                     [this] { Act(UnselectSite); });
  select->setDefault(true);
  return Column({Row({MakeFieldLabel(this, "Label1", "Please &Enter Survey Site #", number_), number_}),
                 Row({select, unselect})});
}

QLayout* frmMask::MakeAnswer()
{
  answer_ = MakeText(this, "Label2", "");
  KeepRoom(*answer_);
  QPushButton* show = MakeButton(this, "Command4", "Show &List of Currently Selected Sites",
                                 " display all currently selected sites ", [this] {
                                   ListSelectedSites(form_, State());
                                   Mirror();
                                   number_->setFocus();
                                 });
  list_ = new QPlainTextEdit(this);
  list_->setObjectName("Text2");
  list_->setAccessibleName("Selected sites");
  list_->setToolTip(" to add or remove a site, use the Select / Unselect buttons... ");
  list_->setReadOnly(true);
  list_->setTabChangesFocus(true);
  KeepRoom(*list_);
  return Column({answer_, show, list_});
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
  ShowChoice(*save_, form_.Check1);
  sites_->ShowSites(ListManualSites(State()));
}

}  // namespace veln
