#pragma once

#include "desktop/program/child_window.h"
#include "graphics/site_map.h"
#include "render/picture_file.h"

class QLabel;
class QMenuBar;
class QPrinter;

namespace veln {

class DrawingView;

/// " Sample Site Map Display": one design at a time as a map of the field. Mirrors `SiteMapForm`.
class frmSiteMap : public ChildWindow {
 public:
  static constexpr const char* Name = "frmSiteMap";

  frmSiteMap(Program& program, QWidget* parent);

 private:
  void MakeMenus();
  void MakeDesignMenus(QMenuBar& bar);
  void MakePrintMenu(QMenuBar& bar);
  void ShowDesign(int number);
  void Print();
  bool PaintOn(QPrinter& printer) const;
  void SaveAsBitmap();
  void SavePicture();
  /// The map on its paper.
  [[nodiscard]] Picture CurrentPicture() const;
  void Mirror();

  SiteMapForm form_;
  Drawing paper_;  // what MGrid shows
  QLabel* title_;
  DrawingView* map_;
};

}  // namespace veln
