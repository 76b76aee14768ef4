#pragma once

#include "toolkit/dialogs.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace veln {

/// The engine's questions as message boxes and file dialogs of the desktop.
class QtDialogs : public Dialogs {
 public:
  void Inform(const std::string& text) override;
  void Warn(const std::string& text) override;
  bool Ask(Question question, const std::string& text) override;
  void Beep() override;
  std::optional<std::filesystem::path> ShowOpen(const FileQuestion& question) override;
  void Shell(const std::vector<std::string>& command) override;
};

}  // namespace veln
