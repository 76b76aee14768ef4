#pragma once

#include "desktop/program/child_window.h"
#include "graphics/survey_graph.h"

#include <array>

class QCheckBox;
class QPushButton;

namespace veln {

/// Asks which designs to show, laid over the map on screen or as the labelled site map.
class OverlayChooser : public ChildWindow {
 public:
  static constexpr const char* Name = "overlayChooser";

  OverlayChooser(Program& program, QWidget* parent);

  /// Shows what can be done with the plot that stands in the graphics window now.
  void Mirror();

 private:
  void Overlay();
  void MakeMap();

  DesignFlags chosen_;
  std::array<QCheckBox*, 6> designs_{};  // null for those that do not exist
  QPushButton* overlay_;
  QPushButton* map_;
};

}  // namespace veln
