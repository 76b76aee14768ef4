#pragma once

#include "desktop/program/form_window.h"
#include "workspace/settings.h"

#include <array>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;

namespace veln {

/// "Default Text Editor & File Input Path Specifications".
class frmFileIO : public FormWindow<FileIoForm> {
 public:
  static constexpr const char* Name = "frmFileIO";

  frmFileIO(Program& program, QWidget* parent);

 protected:
  void WayOut() override;

 private:
  QGroupBox* MakeEditorPart();
  QGroupBox* MakePathPart();
  QGroupBox* MakePrinterPart();
  void Browse();
  /// Lists a directory in `Dir1`; tells the system's reason if it can't be read, and the list stays then.
  bool ListDirectory(const QString& path);
  void MoveTo(const QString& path);
  void Mirror() final;

  QString directory_;           // what `Dir1` lists
  QStringList subDirectories_;  // its entries
  QLineEdit* editor_;
  QLineEdit* inputPath_;
  QComboBox* drives_;
  QListWidget* directories_;
  std::array<QRadioButton*, 3> printers_;
};

}  // namespace veln
