#pragma once

#include "desktop/program/form_window.h"
#include "graphics/site_map.h"
#include "render/picture_file.h"

class QLabel;
class QPrinter;

namespace veln {

class DrawingView;

/// " Sample Site Map Display": one design at a time as a map of the field. Mirrors `SiteMapForm`.
class frmSiteMap : public FormWindow<SiteMapForm> {
 public:
  static constexpr const char* Name = "frmSiteMap";

  frmSiteMap(Program& program, QWidget* parent);

 private:
  void MakeMenus();
  [[nodiscard]] std::vector<MenuLine> DesignLines();
  void ShowDesign(int number);
  void Print();
  bool PaintOn(QPrinter& printer) const;
  void SaveAsBitmap();
  void SavePicture();
  /// The map on its paper.
  [[nodiscard]] Picture CurrentPicture() const;
  void Mirror() final;

  Drawing paper_;  // what MGrid shows
  QLabel* title_;
  DrawingView* map_;
};

}  // namespace veln
