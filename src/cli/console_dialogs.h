#pragma once

#include "toolkit/dialogs.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace veln {

/// The command line's answer to what the engine asks of a person: notes are kept and printed, questions are
/// answered from the options, failures after which the work goes on are told as errors.
class ConsoleDialogs : public Dialogs {
 public:
  struct Answers {
    bool WriteTransitionFile = false;
  };

  /// Notes go to `notes` as they come, unless it is null.
  ConsoleDialogs(Answers answers, std::ostream* notes, std::ostream& errors)
      : answers_(answers), printed_(notes), errors_(errors)
  {
  }

  void Inform(const std::string& text) override;
  void Warn(const std::string& text) override;
  /// Yes to what an option asked for; nothing else is done unasked.
  bool Ask(Question question, const std::string& text) override;
  void Beep() override {}
  std::optional<std::filesystem::path> ShowOpen(const FileQuestion& question) override;
  void Shell(const std::vector<std::string>& command) override;

  [[nodiscard]] const std::vector<std::string>& Notes() const { return notes_; }
  /// Whether a failure was told.
  [[nodiscard]] bool Warned() const { return warned_; }

 private:
  Answers answers_;
  std::ostream* printed_;
  std::ostream& errors_;
  std::vector<std::string> notes_;
  bool warned_ = false;
};

/// For messages that only confirm an option: says nothing.
class SilentDialogs : public Dialogs {
 public:
  void Inform(const std::string& /*text*/) override {}
  void Warn(const std::string& /*text*/) override {}
  bool Ask(Question /*question*/, const std::string& /*text*/) override { return false; }
  void Beep() override {}
  std::optional<std::filesystem::path> ShowOpen(const FileQuestion& /*question*/) override
  {
    return std::nullopt;
  }
  void Shell(const std::vector<std::string>& /*command*/) override {}
};

}  // namespace veln
