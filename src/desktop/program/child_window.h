#pragma once

#include "desktop/program/program.h"
#include "workspace/workflow.h"

#include <QDialog>

#include <optional>
#include <string>

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
    QPoint OffsetTwips = {1000, 750};  ///< from the main window's corner, at the first opening; 15 to a pixel
    std::string Help;                  ///< the document that F1 opens; none if empty
    std::optional<MenuEntry> Gate;     ///< the entry whose closing unloads the window
    QWidget* Origin = nullptr;         ///< the window that the offset counts from, if not the main window
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
  /// The "H" button of the window, for the lower left corner.
  QPushButton* HelpButton(const char* name);
  void changeEvent(QEvent* event) override;

 private:
  void Place();

  Program& program_;
  QPoint offset_;
  QPointer<QWidget> origin_;
  std::string help_;
  std::optional<MenuEntry> gate_;
  bool unloaded_ = false;
};

}  // namespace veln
