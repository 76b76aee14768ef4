#include "desktop/workspace/frm_project.h"

#include "desktop/parts/character_filter.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/fields.h"
#include "desktop/parts/filtered_edit.h"
#include "desktop/parts/layout.h"
#include "toolkit/utf8.h"
#include "workspace/project.h"

#include <QGridLayout>
#include <QListWidget>
#include <QSignalBlocker>

namespace veln {

frmProject::frmProject(Program& program, QWidget* parent)
    : FormWindow(program, parent,
                 {Name, "Create / Set Project and Define Field ID Code", "hdoc04", MenuEntry::mnuProject},
                 LoadProjectForm(program.State, program.Ask()))
{
  QLayout* top = Row({{MakeProjectList(), 1}, {MakeCreation(), 1}}, LargeGap);
  QGroupBox* identity = MakeIdentity();
  QPushButton* help = HelpButton("CHelp");
  QPushButton* cancel =
      MakeButton(this, "Command2", "&Cancel", " exit without creating project or field ID ", Leaves());
  accept_ = MakeButton(this, "Command1", "&OK", " create project and field ID specified above ",
                       [this] { Accept(); });
  KeepRoom(*accept_);
  SetColumn(*this, {{top, 1}, identity, ButtonRow({help, cancel, accept_})});
  Mirror();
}

QGroupBox* frmProject::MakeProjectList()
{
  projects_ = new QListWidget(this);
  projects_->setObjectName("List1");
  projects_->setAccessibleName("Projects");
  projects_->setToolTip(" select a project name from list to set the current project ");
  connect(projects_, &QListWidget::itemSelectionChanged, this, [this] {
    const QList<QListWidgetItem*> selected = projects_->selectedItems();
    if (!selected.isEmpty()) {
      const int row = projects_->row(selected.constFirst());
      ChooseProject(form_, form_.List1.at(static_cast<std::size_t>(row)));
      Mirror();
    }
  });
  return Frame(this, "Frame2", "Set Current Project Directory", Column({projects_}));
}

QGroupBox* frmProject::MakeCreation()
{
  QPushButton* begin = MakeButton(this, "Command5", "&New", " begin new project creation process ", [this] {
    BeginProjectCreation(form_);
    Mirror();
    name_->setFocus();
  });
  name_ =
      new FilteredEdit(this, "Text1", " type in your new project name here ",
                       [this](const Keystroke& key) { return KeyInProjectName(form_, key, Shared().Ask()); });
  nameCaption_ = MakeFieldLabel(this, "Label3", "Project N&ame:", name_);
  create_ = MakeButton(this, "Command3", "C&reate", " create the specified project ", [this] {
    CreateProject(form_, State(), Shared().Ask());
    Mirror();
  });
  cancelCreation_ = MakeButton(this, "Command4", "Cance&l", " cancel project creation process ",
                               Does(CancelProjectCreation));
  for (QWidget* control : std::initializer_list<QWidget*>{nameCaption_, name_, create_, cancelCreation_}) {
    KeepRoom(*control);
  }
  return Frame(this, "Frame3", "Create a New Project Directory",
               Column({Row({begin, LayoutItem::Rest()}), nameCaption_, name_,
                       Row({{create_, 1}, {cancelCreation_, 1}}), LayoutItem::Rest()}));
}

QGroupBox* frmProject::MakeIdentity()
{
  project_ = MakeElidedLabel(this, "LblPrj", "Project:");
  fieldId_ = MakeValueLabel(this, "LblFID", "Field ID:");
  KeepRoom(*fieldId_);
  description_ = MakeEdit(this, "Text2", " type in the field description or title here ", LongestDescription,
                          [this](const std::string& text) { form_.Text2 = text; });
  DropCharacters(*description_, IsControlCharacter, Shared().Ask());
  code_ = new FilteredEdit(this, "Text3", " type in the field ID here ", [this](const Keystroke& key) {
    const bool passes = KeyInFieldId(form_, key, Shared().Ask());
    MirrorFieldId();
    return passes;
  });
  code_->setMaxLength(FieldIdLength);
  auto* grid = new QGridLayout;
  grid->addWidget(MakeText(this, "Label1", "Project:"), 0, 0);
  grid->addWidget(project_, 0, 1);
  grid->addWidget(MakeText(this, "Label2", "Field ID:"), 1, 0);
  grid->addWidget(fieldId_, 1, 1);
  grid->addWidget(MakeFieldLabel(this, "Label4", "Field &Description:", description_), 2, 0);
  grid->addWidget(description_, 2, 1);
  grid->addWidget(MakeFieldLabel(this, "Label5",
                                 "Please enter a unique 4 character alpha-numeric &field ID code:", code_),
                  3, 0, 1, 2);
  grid->addWidget(code_, 4, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  return Frame(this, "Frame1", "Project / Field ID Information", grid);
}

void frmProject::Accept()
{
  Program& program = Shared();
  bool accepted = false;
  program.Try([&] { accepted = AcceptProjectForm(form_, State(), program.Field, program.Ask()); });
  if (accepted) {
    Unload();
    program.Changed();
  } else {
    Mirror();
    code_->setFocus();
  }
}

void frmProject::MirrorProjects()
{
  const QSignalBlocker quiet(projects_);
  if (projects_->count() != static_cast<int>(form_.List1.size())) {
    projects_->clear();
    for (const std::string& project : form_.List1) {
      projects_->addItem(ToQt(project));
    }
  }
  const QList<QListWidgetItem*> chosen = projects_->findItems(ToQt(form_.LblPrj), Qt::MatchCaseSensitive);
  if (form_.LblPrj.empty() || chosen.isEmpty()) {
    projects_->clearSelection();
  } else {
    projects_->setCurrentItem(chosen.constFirst());
  }
}

void frmProject::MirrorFieldId()
{
  ShowValue(*fieldId_, ToQt(form_.LblFID));
  fieldId_->setVisible(form_.LblFIDVisible);
  accept_->setVisible(form_.Command1Visible);
  // Enter creates the project while that is the next thing to do.
  QPushButton* main = form_.CreationVisible && !form_.Command1Visible ? create_ : accept_;
  main->setDefault(true);
}

void frmProject::Mirror()
{
  MirrorProjects();
  ShowValue(*project_, ToQt(form_.LblPrj));
  MirrorFieldId();
  name_->Show(ToQt(form_.Text1));
  code_->Show(ToQt(form_.Text3));
  SetShown({nameCaption_, name_, create_, cancelCreation_}, form_.CreationVisible);
}

}  // namespace veln
