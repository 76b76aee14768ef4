#pragma once

#include "support/files.h"
#include "support/temporary_directory.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <pty.h>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace veln {

/// How a program ended and what it printed. A program that a signal ended has the status 128 and the signal.
struct ProcessResult {
  int Status = -1;
  std::string Out;
  std::string Err;
};

namespace process_detail {

[[noreturn]] inline void Fail(const char* what)
{
  throw std::system_error(errno, std::generic_category(), what);
}

/// In the child: becomes the program. Ends with status 127 if that can't be.
[[noreturn]] inline void Become(const std::filesystem::path& program,
                                const std::vector<std::string>& arguments,
                                const std::filesystem::path& directory)
{
  std::vector<char*> words = {const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  if (chdir(directory.c_str()) == 0) {
    execv(program.c_str(), words.data());
  }
  _exit(127);
}

inline int WaitFor(pid_t child)
{
  constexpr int Signalled = 128;
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) {
      Fail("waitpid");
    }
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : Signalled + WTERMSIG(status);
}

inline void SendTo(const std::filesystem::path& file, int descriptor)
{
  const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (opened < 0 || dup2(opened, descriptor) < 0) {
    _exit(127);
  }
}

}  // namespace process_detail

/// Starts a program in a directory; `prepare` runs in the new process before. It is waited for by `WaitFor`.
inline pid_t StartProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                          const std::filesystem::path& directory, const std::function<void()>& prepare)
{
  const pid_t child = fork();
  if (child < 0) {
    process_detail::Fail("fork");
  }
  if (child == 0) {
    prepare();
    process_detail::Become(program, arguments, directory);
  }
  return child;
}

/// Runs a program in a directory to its end; its output goes to files, or to `outFile` where one is named.
inline ProcessResult RunProcess(const std::filesystem::path& program,
                                const std::vector<std::string>& arguments,
                                const std::filesystem::path& directory,
                                const std::filesystem::path& outFile = {})
{
  const TemporaryDirectory printed;
  const int status = process_detail::WaitFor(StartProcess(program, arguments, directory, [&] {
    process_detail::SendTo(outFile.empty() ? printed.Path() / "out" : outFile, STDOUT_FILENO);
    process_detail::SendTo(printed.Path() / "err", STDERR_FILENO);
  }));
  return {status, outFile.empty() ? ReadText(printed.Path() / "out") : "", ReadText(printed.Path() / "err")};
}

/// Runs a program on a terminal of its own. Both outputs are in `Out`, as the terminal gets them.
inline ProcessResult RunOnTerminal(const std::filesystem::path& program,
                                   const std::vector<std::string>& arguments,
                                   const std::filesystem::path& directory)
{
  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, nullptr);
  if (child < 0) {
    process_detail::Fail("forkpty");
  }
  if (child == 0) {
    process_detail::Become(program, arguments, directory);
  }
  ProcessResult result;
  std::array<char, 4096> block{};
  for (ssize_t count = 0; (count = read(terminal, block.data(), block.size())) > 0;) {
    result.Out.append(block.data(), static_cast<std::size_t>(count));
  }
  close(terminal);  // the read has failed, which tells that the program has closed its side
  result.Status = process_detail::WaitFor(child);
  return result;
}

}  // namespace veln
