#pragma once

#include "desktop/program/form_window.h"
#include "forms/structure_form.h"

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QRadioButton;
class QTableWidget;

namespace veln {

/// "File Structure and Import": the file with a preview, its columns, its labels and units, and the import.
class frmStructure : public FormWindow<StructureForm> {
 public:
  static constexpr const char* Name = "frmStructure";

  frmStructure(Program& program, QWidget* parent);

  /// Fits the window to the survey type that was chosen from the menu.
  void SetSurveyType(bool transect);
  /// Puts a path into `Text3`.
  void SetFileName(const QString& fileName);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QGroupBox* MakeFilePart();
  QGroupBox* MakeColumnPart();
  QGroupBox* MakeLabelPart();
  void AddUnits(QGridLayout& grid);
  void AddTransform(QGridLayout& grid);
  QLayout* MakeProgress();
  void Browse();
  void Import();
  void ShowProgress(ImportPass pass, int count);
  void HideProgress();
  void Mirror() final;
  void ShowPreview();

  QLineEdit* file_;
  QTableWidget* preview_ = nullptr;
  QLabel* previewNote_ = nullptr;
  QCheckBox* siteId_;
  QCheckBox* secondSignal_;
  QLabel* rowColumn_;
  QLabel* order_;
  QLineEdit* label1_;
  QLabel* label2Caption_;
  QLineEdit* label2_;
  QCheckBox* milli_;
  QCheckBox* deci_;
  QRadioButton* logYes_;
  QRadioButton* logNo_;
  QLabel* scanning_;
  QLabel* scanned_;
  QLabel* importing_;
  QLabel* imported_;
};

}  // namespace veln
