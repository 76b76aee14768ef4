#pragma once

#include "desktop/parts/menus.h"
#include "desktop/program/program.h"
#include "workspace/workflow.h"

#include <QDialog>

#include <functional>
#include <optional>
#include <string>
#include <vector>

class QPushButton;

namespace veln {

/// A window beside the main one: single instance, modeless, loaded afresh at each opening. Keeps its place
/// and size from one opening to the next. Closing it by its own control or by Esc takes its way out.
class ChildWindow : public QDialog {
 public:
  /// What makes one window differ from another.
  struct Traits {
    const char* Name;  ///< "frmProject"
    QString Title;
    std::string Help = {};               ///< the document that F1 opens; none if empty
    std::optional<MenuEntry> Gate = {};  ///< the entry whose closing unloads the window
    QWidget* Origin = nullptr;           ///< the window beside which it opens, if not the main window
    QPoint OffsetTwips =
        QPoint(1000, 750);  ///< from that window's corner, at the first opening; 15 to a pixel
  };

  ChildWindow(Program& program, QWidget* parent, const Traits& traits);

  [[nodiscard]] const std::optional<MenuEntry>& Gate() const { return gate_; }
  [[nodiscard]] bool Unloaded() const { return unloaded_; }
  /// Shows the window, or brings it to the front if it is open.
  void BringUp();
  /// Closes the window without any question or action; it is deleted once the present event is over.
  void Unload();
  /// Esc and the window's own control: takes the way out.
  void reject() final;

 protected:
  /// What the window's "Cancel", "Return" or "No" does; unloads it unless a window needs more.
  virtual void WayOut() { Unload(); }
  Program& Shared() { return program_; }
  SurveyState& State() { return program_.State; }
  [[nodiscard]] const SurveyState& State() const { return program_.State; }
  /// For a button: takes the way out.
  std::function<void()> Leaves()
  {
    return [this] { WayOut(); };
  }
  /// The "H" button of the window, for the lower left corner.
  QPushButton* HelpButton(const char* name);
  /// Gives the window its menus, above its layout.
  void SetMenus(const std::vector<MenuLine>& lines);
  /// Opens and closes the entries of the menus as they tell.
  void MirrorMenus() const { menus_.Mirror(); }
  void changeEvent(QEvent* event) override;

 private:
  void Place();

  Program& program_;
  QPoint offset_;
  QPointer<QWidget> origin_;
  std::string help_;
  std::optional<MenuEntry> gate_;
  Menus menus_;
  bool unloaded_ = false;
};

}  // namespace veln
