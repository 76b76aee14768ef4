#pragma once

#include "desktop/child_window.h"
#include "render/picture_file.h"

class QComboBox;
class QLabel;
class QSpinBox;

namespace veln {

/// "Save picture": asks for format and width, then for the file.
class PictureDialog : public ChildWindow {
 public:
  static constexpr const char* Name = "pictureDialog";

  /// `suffix` is what the name offered has behind the field ID ("plot"). The picture is the one shown when
  /// the dialog was opened; `owner` waits meanwhile.
  PictureDialog(Program& program, QWidget* owner, Picture picture, const char* suffix);

 private:
  [[nodiscard]] PictureFormat Format() const;
  void Save();
  void Mirror();

  Picture picture_;
  std::string suffix_;
  QComboBox* format_;
  QLabel* widthCaption_;
  QSpinBox* width_;
};

}  // namespace veln
