#pragma once

#include "desktop/program/child_window.h"
#include "forms/help_document.h"

class QTextBrowser;

namespace veln {

/// "VELN-QTRD OnLine Help": the one window in which all help documents show.
class frmHelp : public ChildWindow {
 public:
  static constexpr const char* Name = "frmHelp";

  frmHelp(Program& program, QWidget* parent);

  /// Puts a document in the place of the one that is shown.
  void ShowDocument(const HelpDocument& document);

 private:
  void Print();

  QTextBrowser* text_;
  std::string content_;  ///< what is shown, byte for byte
};

}  // namespace veln
