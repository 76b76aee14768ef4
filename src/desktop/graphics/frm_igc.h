#pragma once

#include "desktop/program/form_window.h"
#include "forms/igc_form.h"

#include <array>

class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QRadioButton;
class QScrollBar;

namespace veln {

/// "Graphics Initialization": the options of the plots of frmSvyGraph.
class frmIGC : public FormWindow<IgcForm> {
 public:
  static constexpr const char* Name = "frmIGC";

  frmIGC(Program& program, QWidget* parent);

 private:
  QLayout* MakeDirection();
  QLayout* MakeChecks();
  QLayout* MakeSymbolSize();
  QGroupBox* MakePalettes();
  void AddPalette(QGridLayout& grid, int number);
  QGroupBox* MakePlaces();
  void Initialize();
  void Mirror() final;

  QLabel* directionCaption_;
  std::array<QRadioButton*, 2> directions_{};
  std::array<QCheckBox*, 5> checks_{};  // `Check1` to `Check5`
  QGroupBox* paletteFrame_;
  std::array<QRadioButton*, 4> palettes_{};
  QLabel* sizeCaption_;
  QScrollBar* sizeBar_;
  QLineEdit* sizeText_;
  std::array<QRadioButton*, 4> places_{};
};

}  // namespace veln
