#pragma once

#include "desktop/program/form_window.h"
#include "forms/project_form.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace veln {

class FilteredEdit;

/// "Create / Set Project and Define Field ID Code".
class frmProject : public FormWindow<ProjectForm> {
 public:
  static constexpr const char* Name = "frmProject";

  frmProject(Program& program, QWidget* parent);

 private:
  QGroupBox* MakeProjectList();
  QGroupBox* MakeCreation();
  QGroupBox* MakeIdentity();
  void Accept();
  void Mirror() final;
  void MirrorProjects();
  void MirrorFieldId();

  QListWidget* projects_;
  QLabel* nameCaption_;
  FilteredEdit* name_;
  QPushButton* create_;
  QPushButton* cancelCreation_;
  QLabel* project_;
  QLabel* fieldId_;
  QLineEdit* description_;
  FilteredEdit* code_;
  QPushButton* accept_;
};

}  // namespace veln
