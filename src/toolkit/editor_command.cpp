#include "toolkit/editor_command.h"

#include "toolkit/refusal.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace veln {

namespace {

std::string WithoutOuterBlanks(const std::string& text)
{
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> SplitAtBlanks(const std::string& text)
{
  std::vector<std::string> words;
  bool inWord = false;
  bool quoted = false;
  for (const char c : text) {
    if (c == ' ' && !quoted) {
      inWord = false;
      continue;
    }
    if (!inWord) {
      words.emplace_back();
      inWord = true;
    }
    if (c == '"') {
      quoted = !quoted;
    } else {
      words.back() += c;
    }
  }
  return words;
}

void Report(int error, int pipeEnd)
{
  [[maybe_unused]] const ssize_t told = write(pipeEnd, &error, sizeof error);
}

/// Runs in the grandchild, which no one waits for: becomes the program, or reports why it can't.
[[noreturn]] void BecomeProgram(const std::vector<char*>& arguments, int pipeEnd)
{
  execvp(arguments[0], arguments.data());
  Report(errno, pipeEnd);
  _exit(127);
}

}  // namespace

std::vector<std::string> EditorCommand(const std::string& editor, const std::string& document)
{
  const std::string whole = WithoutOuterBlanks(editor);
  std::error_code failure;
  std::vector<std::string> command;
  if (std::filesystem::is_regular_file(whole, failure)) {
    command.push_back(whole);
  } else {
    command = SplitAtBlanks(whole);
  }
  if (command.empty()) {
    throw Refusal(
        "No text editor is set.\nPlease choose one under \"VELN Interface Controls\" of the Help menu.");
  }
  command.push_back(document);
  return command;
}

void StartProgram(const std::vector<std::string>& command)
{
  std::vector<std::string> words = command;
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) {
    arguments.push_back(word.data());
  }
  arguments.push_back(nullptr);

  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    throw Refusal(std::generic_category().message(errno));
  }
  const pid_t child = fork();
  if (child == 0) {
    setsid();
    const pid_t grandchild = fork();
    if (grandchild == 0) {
      BecomeProgram(arguments, ends[1]);
    }
    if (grandchild < 0) {
      Report(errno, ends[1]);
    }
    _exit(0);
  }
  const int forkError = errno;
  close(ends[1]);
  int error = 0;
  const bool failed = child > 0 && read(ends[0], &error, sizeof error) == sizeof error;
  close(ends[0]);
  if (child > 0) {
    waitpid(child, nullptr, 0);
  }
  if (child < 0 || failed) {
    throw Refusal(command[0] + ": " + std::generic_category().message(child < 0 ? forkError : error));
  }
}

}  // namespace veln
