#include "desktop/workspace/frm_project.h"

#include "desktop/parts/character_filter.h"
#include "desktop/parts/controls.h"
#include "desktop/parts/filtered_edit.h"
#include "toolkit/utf8.h"
#include "workspace/project.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace veln {

frmProject::frmProject(Program& program, QWidget* parent)
    : ChildWindow(program, parent,
                  {Name,
                   "Create / Set Project and Define Field ID Code",
                   {1000, 750},
                   "hdoc04",
                   MenuEntry::mnuProject}),
      form_(LoadProjectForm(program.State, program.Ask()))
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  layout->setSpacing(LargeGap);
  auto* top = new QHBoxLayout;
  top->setSpacing(LargeGap);
  top->addWidget(MakeProjectList(), 1);
  top->addWidget(MakeCreation(), 1);
  layout->addLayout(top, 1);
  layout->addWidget(MakeIdentity());

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(HelpButton("CHelp"));
  buttons->addStretch();
  QPushButton* cancel =
      MakeButton(this, "Command2", "&Cancel", " exit without creating project or field ID ");
  accept_ = MakeButton(this, "Command1", "&OK", " create project and field ID specified above ");
  accept_->setDefault(true);
  KeepRoom(*accept_);
  buttons->addWidget(cancel);
  buttons->addWidget(accept_);
  layout->addLayout(buttons);
  connect(cancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(accept_, &QPushButton::clicked, this, [this] { Accept(); });
  Mirror();
}

QGroupBox* frmProject::MakeProjectList()
{
  auto* frame = new QGroupBox("Set Current Project Directory", this);
  frame->setObjectName("Frame2");
  auto* column = new QVBoxLayout(frame);
  projects_ = new QListWidget(frame);
  projects_->setObjectName("List1");
  projects_->setAccessibleName("Projects");
  projects_->setToolTip(" select a project name from list to set the current project ");
  column->addWidget(projects_);
  connect(projects_, &QListWidget::itemSelectionChanged, this, [this] {
    const QList<QListWidgetItem*> selected = projects_->selectedItems();
    if (!selected.isEmpty()) {
      ChooseProject(form_, form_.List1.at(projects_->row(selected.constFirst())));
      Mirror();
    }
  });
  return frame;
}

QGroupBox* frmProject::MakeCreation()
{
  auto* frame = new QGroupBox("Create a New Project Directory", this);
  frame->setObjectName("Frame3");
  auto* grid = new QGridLayout(frame);
  begin_ = MakeButton(frame, "Command5", "&New", " begin new project creation process ");
  name_ = new FilteredEdit(
      frame, [this](const Keystroke& key) { return KeyInProjectName(form_, key, Shared().Ask()); });
  name_->setObjectName("Text1");
  name_->setToolTip(" type in your new project name here ");
  nameCaption_ = MakeFieldLabel(frame, "Label3", "Project N&ame:", name_);
  create_ = MakeButton(frame, "Command3", "C&reate", " create the specified project ");
  cancelCreation_ = MakeButton(frame, "Command4", "Cance&l", " cancel project creation process ");
  grid->addWidget(begin_, 0, 0, 1, 2, Qt::AlignLeft);
  grid->addWidget(nameCaption_, 1, 0, 1, 2);
  grid->addWidget(name_, 2, 0, 1, 2);
  grid->addWidget(create_, 3, 0);
  grid->addWidget(cancelCreation_, 3, 1);
  grid->setRowStretch(4, 1);
  for (QWidget* control : {static_cast<QWidget*>(nameCaption_), static_cast<QWidget*>(name_),
                           static_cast<QWidget*>(create_), static_cast<QWidget*>(cancelCreation_)}) {
    KeepRoom(*control);
  }
  connect(begin_, &QPushButton::clicked, this, [this] {
    BeginProjectCreation(form_);
    Mirror();
    name_->setFocus();
  });
  connect(create_, &QPushButton::clicked, this, [this] {
    CreateProject(form_, State(), Shared().Ask());
    Mirror();
  });
  connect(cancelCreation_, &QPushButton::clicked, this, [this] {
    CancelProjectCreation(form_);
    Mirror();
  });
  return frame;
}

QGroupBox* frmProject::MakeIdentity()
{
  auto* frame = new QGroupBox("Project / Field ID Information", this);
  frame->setObjectName("Frame1");
  auto* grid = new QGridLayout(frame);
  project_ = MakeElidedLabel(frame, "LblPrj", "Project:");
  fieldId_ = MakeValueLabel(frame, "LblFID", "Field ID:");
  KeepRoom(*fieldId_);
  description_ = new QLineEdit(frame);
  description_->setObjectName("Text2");
  description_->setToolTip(" type in the field description or title here ");
  description_->setMaxLength(LongestDescription);
  DropCharacters(*description_, IsControlCharacter, Shared().Ask());
  code_ = new FilteredEdit(frame, [this](const Keystroke& key) {
    const bool passes = KeyInFieldId(form_, key, Shared().Ask());
    MirrorFieldId();
    return passes;
  });
  code_->setObjectName("Text3");
  code_->setToolTip(" type in the field ID here ");
  code_->setMaxLength(FieldIdLength);
  grid->addWidget(MakeText(frame, "Label1", "Project:"), 0, 0);
  grid->addWidget(project_, 0, 1);
  grid->addWidget(MakeText(frame, "Label2", "Field ID:"), 1, 0);
  grid->addWidget(fieldId_, 1, 1);
  grid->addWidget(MakeFieldLabel(frame, "Label4", "Field &Description:", description_), 2, 0);
  grid->addWidget(description_, 2, 1);
  QLabel* codeCaption = MakeFieldLabel(
      frame, "Label5", "Please enter a unique 4 character alpha-numeric &field ID code:", code_);
  grid->addWidget(codeCaption, 3, 0, 1, 2);
  grid->addWidget(code_, 4, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  connect(description_, &QLineEdit::textChanged, this,
          [this](const QString& text) { form_.Text2 = FromQt(text); });
  return frame;
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
  for (QWidget* control : {static_cast<QWidget*>(nameCaption_), static_cast<QWidget*>(name_),
                           static_cast<QWidget*>(create_), static_cast<QWidget*>(cancelCreation_)}) {
    control->setVisible(form_.CreationVisible);
  }
}

}  // namespace veln
