#pragma once

#include "toolkit/dialogs.h"
#include "toolkit/refusal.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace veln {

/// Answers from a script and keeps what was said. A question without an answer fails the test, and so does an
/// answer that was never asked for.
class ScriptedDialogs : public Dialogs {
 public:
  /// `answers`: Yes (true) or No, in the order of the questions.
  explicit ScriptedDialogs(std::deque<bool> answers = {}) : answers_(std::move(answers)) {}
  ScriptedDialogs(const ScriptedDialogs&) = delete;
  ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
  ~ScriptedDialogs() override
  {
    EXPECT_TRUE(answers_.empty()) << answers_.size() << " answers were not asked for";
  }

  /// The answer to the question behind those scripted so far.
  void Answer(bool yes) { answers_.push_back(yes); }
  /// What the next file dialog brings; a dialog without a script is cancelled.
  void ChooseFile(std::optional<std::filesystem::path> file) { files_.push_back(std::move(file)); }
  /// Lets every program that is to be started fail with this text.
  void FailShell(std::string systemText) { shellFailure_ = std::move(systemText); }

  void Inform(const std::string& text) override { Said.push_back("inform: " + text); }
  void Warn(const std::string& text) override { Said.push_back("warn: " + text); }
  void Beep() override { Said.emplace_back("beep"); }

  bool Ask(Question question, const std::string& text) override
  {
    Named.push_back(question);
    Said.push_back("ask: " + text);
    if (answers_.empty()) {
      ADD_FAILURE() << "no answer is scripted for: " << text;
      return false;
    }
    const bool yes = answers_.front();
    answers_.pop_front();
    return yes;
  }

  std::optional<std::filesystem::path> ShowOpen(const FileQuestion& question) override
  {
    Said.push_back("open: " + question.DialogTitle);
    Questions.push_back(question);
    if (files_.empty()) {
      return std::nullopt;
    }
    auto file = std::move(files_.front());
    files_.pop_front();
    return file;
  }

  /// Starts nothing. In `Said` each word of the command stands in brackets: "shell: [write] [my file.txt]".
  void Shell(const std::vector<std::string>& command) override
  {
    std::string line = "shell:";
    for (const std::string& word : command) {
      line += " [" + word + "]";
    }
    Said.push_back(line);
    if (shellFailure_) {
      throw Refusal(*shellFailure_);
    }
  }

  /// One entry for each thing said, in order: "inform: ...", "warn: ...", "ask: ...", "beep", "open: ...",
  /// "shell: ...".
  std::vector<std::string> Said;
  /// The names of the questions asked.
  std::vector<Question> Named;
  /// What the file dialogs offered.
  std::vector<FileQuestion> Questions;

 private:
  std::deque<bool> answers_;
  std::deque<std::optional<std::filesystem::path>> files_;
  std::optional<std::string> shellFailure_;
};

}  // namespace veln
