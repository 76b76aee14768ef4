#include "cli/console_dialogs.h"

#include "toolkit/refusal.h"

#include <ostream>

namespace veln {

void ConsoleDialogs::Inform(const std::string& text)
{
  notes_.push_back(text);
  if (printed_ != nullptr) {
    *printed_ << text << "\n";
  }
}

void ConsoleDialogs::Warn(const std::string& text)
{
  warned_ = true;
  errors_ << text << "\n" << std::flush;
}

bool ConsoleDialogs::Ask(Question question, const std::string& /*text*/)
{
  if (question == Question::WriteTransitionFile) {
    return answers_.WriteTransitionFile;
  }
  return question == Question::ScoreDesigns;  // --ads has said how many
}

std::optional<std::filesystem::path> ConsoleDialogs::ShowOpen(const FileQuestion& /*question*/)
{
  return std::nullopt;
}

void ConsoleDialogs::Shell(const std::vector<std::string>& /*command*/)
{
  throw Refusal("The command line starts no other program.");
}

}  // namespace veln
