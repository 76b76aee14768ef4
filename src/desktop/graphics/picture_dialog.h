#pragma once

#include "desktop/program/child_window.h"
#include "render/picture_file.h"

#include <array>

class QLabel;
class QRadioButton;
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
  void Save();
  void Mirror();

  Picture picture_;
  std::string suffix_;
  std::size_t format_ = 0;  // from the top
  int pixels_;              // across
  std::array<QRadioButton*, 3> formats_{};
  QLabel* widthCaption_;
  QSpinBox* width_;
};

}  // namespace veln
